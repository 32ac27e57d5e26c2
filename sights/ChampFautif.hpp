#pragma once

#include "sights/Observation.hpp"

#include <cstdint>
#include <optional>

namespace velmaris {

/// A field that a star's or a planet's sight needs.
enum class ChampVisee : std::uint8_t { HauteurOeil, Collimation, Jour, Mois, Annee, Heure, Minute, Seconde };

/// What is wrong with a field.
enum class Defaut : std::uint8_t {
  Vide,
  PasUnNombre,    ///< eye height or index correction, which are numbers with a comma
  SousLaMer,      ///< a negative eye height
  HorsDuJour,     ///< an hour that isn't a whole one from 0 to 23
  HorsDeLHeure,   ///< a minute or second that isn't a whole one from 0 to 59
  DateImpossible, ///< day, month and year are each there and make no date
};

/// A field that a sight can't be reduced with.
struct ChampFautif {
  ChampVisee champ = ChampVisee::HauteurOeil;
  Defaut defaut = Defaut::Vide;
};

/// The first field, in the order in which the reduction of a star or a planet reads them, that it can't use.
/// @return nothing when it can use all of them; the Sun and the Moon pass over any text
std::optional<ChampFautif> TrouveChampFautif(const Observation &observation);

} // namespace velmaris

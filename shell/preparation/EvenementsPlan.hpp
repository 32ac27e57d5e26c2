#pragma once

#include "complements/prevision/Journee.hpp"

#include <cstddef>
#include <optional>
#include <vector>

namespace velmaris {

/// What happens on a day, in its usual course: the order of the window's words.
enum class GenreEvenement : std::uint8_t {
  AubeAstronomique,
  AubeNautique,
  AubeCivile,
  LeverSoleil,
  MeridienSoleil,
  CoucherSoleil,
  SoirCivil,
  SoirNautique,
  SoirAstronomique,
  LeverLune,
  MeridienLune,
  CoucherLune,
};
inline constexpr std::size_t kGenresEvenement = 12;

/// One event of a day, or why it isn't there.
struct EvenementDuPlan {
  GenreEvenement genre = GenreEvenement::LeverSoleil;
  std::optional<EvenementCiel> moment;
  RaisonAbsence absence = RaisonAbsence::Aucune; ///< without a moment
};

/// All events of a day: those that happen by their time, then those that don't, in their usual course.
std::vector<EvenementDuPlan> EvenementsDuJour(const Journee &journee);

/// Minutes of the day at which an event happens, to the nearest minute, ascending, each once.
std::vector<int> MinutesDesEvenements(const Journee &journee);

/// The minute that a slider comes to rest at: that of an event when it was drawn to its neighbourhood, else its own.
/// @param avant   the minute that it stood at: a step of one or ten minutes goes where it leads
int Accroche(const std::vector<int> &minutes, int avant, int minute);

} // namespace velmaris

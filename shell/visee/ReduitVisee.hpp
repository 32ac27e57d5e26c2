#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstdint>
#include <optional>

namespace velmaris {

/// Who has a sight reduced: the user, who is told what can't be, or a redraw, which skips it without a word.
enum class Demande : std::uint8_t { Utilisateur, Retrace };

/// The two heights that an intercept was formed from, degrees.
struct Hauteurs {
  double Ho = 0.0;
  double Hc = 0.0;
};

/// Forms the GMT and the estimated position of a sight, for its reduction.
void PrepareVisee(Bureau &bureau, const Observation &observation);

/// Reduces a sight by its kind of body, shows the result and puts back the fields that a reduction writes.
/// Azimuth and intercept are left in `bureau.visee`, the body's name in `bureau.NomAstre`.
/// @return nothing when the reading was 0 or no body is chosen, and nothing has changed; nor in a redraw when the
///         reduction fails, azimuth and intercept being those of the sight before
/// @throws ErreurExpliquee for the user alone, when a star's or a planet's sight can't be reduced
std::optional<Hauteurs> ReduitVisee(Bureau &bureau, Observation &observation, Demande demande = Demande::Utilisateur);

/// What the last reduction has left and shown.
EtatResultat PriseResultat(const Bureau &bureau);

/// Puts back what a reduction has left and shown, without one.
void RemetResultat(Bureau &bureau, const EtatResultat &resultat);

} // namespace velmaris

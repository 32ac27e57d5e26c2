#pragma once

#include "shell/Bureau.hpp"

#include <optional>

namespace velmaris {

/// The two heights that an intercept was formed from, degrees.
struct Hauteurs {
  double Ho = 0.0;
  double Hc = 0.0;
};

/// Forms the GMT and the estimated position of a sight, for its reduction.
void PrepareVisee(Bureau &bureau, const Observation &observation);

/// Reduces a sight by its kind of body, shows the result and puts back the fields that a reduction writes.
/// Azimuth and intercept are left in `bureau.visee`, the body's name in `bureau.NomAstre`.
/// @return nothing when the reading was 0 or no body is chosen, and nothing has changed
std::optional<Hauteurs> ReduitVisee(Bureau &bureau, Observation &observation);

/// Normalises the fields, reduces the sight of the panel and draws the sheet around its estimated position.
/// A reading of 0 leaves azimuth and intercept, and the sheet is drawn with those of the sight before.
std::optional<Hauteurs> PremiereDroite(Bureau &bureau);

/// Adds the sight of the panel to the sheet.
void DroiteSuivante(Bureau &bureau);

/// Puts the captions of the sheet on the screen.
void MontreTitresFeuille(Bureau &bureau);

} // namespace velmaris

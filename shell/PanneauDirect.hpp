#pragma once

#include "shell/Bureau.hpp"

namespace velmaris {

/// Left edge of a mark that is put away, 1/1440 inch.
inline constexpr double kHorsDeVue = -2000.0;

/// The Sun's present place on the live panel.
/// @param sansDessin  true leaves labels, dials and sub-solar point alone
void PosSoleil(Bureau &bureau, bool sansDessin);

/// Draws the two dials of module 8 and fills their labels.
/// @param azimut, hauteur  degrees
void TraceCadrans(Bureau &bureau, double azimut, double hauteur);

/// Puts the Sun's mark at the sub-solar point of the sheet, or out of view when it lies off the sheet.
void PlaceMarqueSoleil(Bureau &bureau);

} // namespace velmaris

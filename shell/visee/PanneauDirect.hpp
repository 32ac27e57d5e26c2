#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Left edge of a mark that is put away, 1/1440 inch.
inline constexpr double kHorsDeVue = -2000.0;

/// The present place of the body that is chosen in the sight panel, on the live panel while it is open.
void PositionLive(Bureau &bureau);

/// The Sun's present place on the live panel.
/// @param versCiel    true leaves it with the sky window: azimuth "X" height as the tag of its `SOL`, right ascension
///                    "X" declination as the caption of its `Label1`
/// @param sansDessin  true leaves labels, dials and sub-solar point alone
void PosSoleil(Bureau &bureau, bool versCiel, bool sansDessin);

/// The Moon's present place on the live panel; the Sun's mark goes out of view.
/// @param versCiel    true leaves it with the sky window: azimuth "X" height as the tag of its `Lune`, declination "X"
///                    right ascension, degrees and hours, as the caption of its `Label1`
/// @param sansDessin  true leaves labels and dials alone
void PosLune(Bureau &bureau, bool versCiel, bool sansDessin);

/// The chosen star's present place; nothing while none is chosen. `Azimut` and `HauteurCalculee` become those of the
/// star now, which the next drawing takes.
/// @param dessin  whether it shows on the panel
void PositionEtoileLive(Bureau &bureau, bool dessin);

/// The chosen planet on the live panel: its place at the sight's date and time, its azimuth and height now. `Azimut`
/// and `HauteurCalculee` become those.
void PositionPlaneteLive(Bureau &bureau);

/// Draws the two dials of module 8 and fills their labels.
/// @param azimut, hauteur  degrees
void TraceCadrans(Bureau &bureau, double azimut, double hauteur);

/// Puts the Sun's mark at the sub-solar point on the sheet or the chart, or out of view when it lies off the surface.
void PlaceMarqueSoleil(Bureau &bureau);

} // namespace velmaris

#pragma once

#include "shell/Bureau.hpp"

namespace velmaris {

/// "Calcul": reduces the sight of the panel and draws its sheet; none of the stored lines is on it.
void Command2_Click(Bureau &bureau, int indice);

/// Normalises the fields, reduces the sight of the panel and draws the sheet around its estimated position.
/// A reading of 0 leaves azimuth and intercept, and the sheet is drawn with those of the sight before.
void PremiereDroite(Bureau &bureau);

/// Redraws the sheet: with no line on it, the sight of the panel.
void RetraceDroites(Bureau &bureau);

/// The hours and minutes of dead reckoning take those of the sight.
void MajHeureListes(Bureau &bureau);

/// Shows what the store holds of the four lines: date, time, and the body's name as the button's tool tip.
void MajListeDroites(Bureau &bureau);

/// "Ecran": clears the surface and its captions; no line is on a sheet any more.
void Command6_Click(Bureau &bureau, int indice);

/// "Lat/Lon": draws the grid or leaves it out, on either of the two buttons on one spot.
void Grille_Click(Bureau &bureau, int indice);

/// The zoom slider: the sheet follows its value.
void HScroll1_Change(Bureau &bureau, int indice);

} // namespace velmaris

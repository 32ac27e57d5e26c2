#pragma once

#include "shell/bureau/Bureau.hpp"
#include "shell/carte/LecturesCarte.hpp"

#include <optional>
#include <string_view>
#include <vector>

namespace velmaris {

/// Draws the chart over what the surface holds, unless that is a chart of another place or scale, which is cleared
/// first: the outlines that the options ask for, cities, user's objects. Every
/// file is read again, those of outlines at the same time; one that can't be read is told and left out. The title of
/// the module then tells how long it took when that is over a second, and its tool tip how many points each file had.
void OuvreCartes(Bureau &bureau);

/// Draws one polygon file, the shapes that its closed outlines enclose below everything else. A file that can't be
/// read, or that has more points than the table, is told in a box and not drawn; one that was opened and not read to
/// its end stays open, and no other can be opened until the next start.
/// @param lu      the file as it was read
/// @param nom     of the file
/// @param teinte  of the shapes; none for lines alone
void ChargePolygone(Bureau &bureau, PolygoneLu lu, std::string_view nom, Couleur couleur,
                    std::optional<Teinte> teinte = {});

/// Reads from the settings whether the chart's land is tinted: at first it is.
void LitTerres(Bureau &bureau);

/// The chart's land and lakes are tinted, or no longer; kept at once.
void PU_Terres_Click(Bureau &bureau, int indice);

/// Buttons of the module "Carte:" and entries of the menu.
/// @{
void Command17_Click(Bureau &bureau, int indice); ///< "Affiche": OuvreCartes
void Command16_Click(Bureau &bureau, int indice); ///< "Efface": the chart goes, the lines are drawn again
void PU_Centre_Click(Bureau &bureau, int indice); ///< the chart alone, around the place where the menu was opened
/// @}

} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

class QPainter;

namespace velmaris::qt {

/// Paints the print page as it stands, without its button: on the screen, and the same on paper.
/// @param painter    its unit is the toolkit's pixel, or a printer's
/// @param facteur    units per 1/1440 inch
/// @param eclairage  by what light it is seen
void PeintPage(QPainter &painter, const Impression &page, double facteur, Eclairage eclairage);

} // namespace velmaris::qt

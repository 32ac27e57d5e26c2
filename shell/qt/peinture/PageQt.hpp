#pragma once

#include "shell/fenetres/Impression.hpp"

class QPainter;

namespace velmaris::qt {

/// Paints the print page as it stands, without its button: on the screen, and the same on paper.
/// @param painter  its unit is the toolkit's pixel, or a printer's
/// @param facteur  units per 1/1440 inch
/// @param nuit     in red on black
void PeintPage(QPainter &painter, const Impression &page, double facteur, bool nuit);

} // namespace velmaris::qt

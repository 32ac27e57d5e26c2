#pragma once

#include "complements/papier/Feuillet.hpp"
#include "shell/bureau/Bureau.hpp"

#include <QRectF>

class QPagedPaintDevice;
class QPaintDevice;
class QPainter;

namespace velmaris::qt {

/// Paints a printed page: on the screen, and the same on paper.
/// @param painter    its unit is the toolkit's pixel, or a printer's
/// @param facteur    units per 1/1440 inch
/// @param eclairage  by what light it is seen
void PeintFeuillet(QPainter &painter, const Feuillet &feuillet, double facteur, Eclairage eclairage = Eclairage::Jour);

/// Where a text of a page stands, 1/1440 inch, unturned.
/// @param support  what it is painted on
/// @param facteur  as for PeintFeuillet
QRectF ZoneDuMot(const MotFeuillet &mot, const QPaintDevice &support, double facteur);

/// Paints pages onto the sheets of a printer or a file, each at its full size; smaller where the sheet is too small.
/// @return false when that fails, or when the work is to stop
bool PeintFeuillets(const std::vector<Feuillet> &feuillets, QPagedPaintDevice &support, const Avancement &avancement);

/// The bytes of a PDF file with these pages; empty when it can't be made, or when the work is to stop. Any thread may
/// call.
std::string OctetsPdf(const std::vector<Feuillet> &feuillets, const Avancement &avancement);

} // namespace velmaris::qt

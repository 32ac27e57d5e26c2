#pragma once

class QPainter;

namespace velmaris::qt {

/// The pictures of the complements' buttons, on a square of 24 units, in the painter's own pen.
/// @{
void DessineFiche(QPainter &p);    ///< a sheet with a tick
void DessineRegistre(QPainter &p); ///< rows
void DessinePoint(QPainter &p);    ///< a ringed dot where lines cross
void DessinePlan(QPainter &p);     ///< the sky over a horizon
void DessineSerie(QPainter &p);    ///< readings along a slope
void DessineExercice(QPainter &p); ///< a target
void DessinePapier(QPainter &p);   ///< a page of columns under another one
/// @}

} // namespace velmaris::qt

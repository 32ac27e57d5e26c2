#pragma once

#include "shell/bureau/Bureau.hpp"
#include "shell/preparation/DessinPlan.hpp"

namespace velmaris {

/// The plan as one page of A4: the day's events, the sky of the moment as it is shown, its bodies with what the sextant
/// shows, the best sets, and how it was made. It fits a letter page too.
/// @param carte  the sky's chart as the window has it
Surface PageDuPlan(const Bureau &bureau, const CarteDuPlan &carte);

/// Asks for a file and writes the page into it, as PDF or, by the name's end, SVG or PNG; one that can't be written is
/// told.
void EmportePlan(Bureau &bureau, const CarteDuPlan &carte);

} // namespace velmaris

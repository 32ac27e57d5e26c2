#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Bodies of the sky that the list shows, the brightest first: those over the horizon, those left out only where they
/// are asked for.
std::vector<std::size_t> AstresMontres(const PlanOuvert &plan, bool ecartes);

/// Brings the tables of the plan in line with what was worked out.
void PoseTableauxPlan(Bureau &bureau);

} // namespace velmaris

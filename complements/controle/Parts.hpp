#pragma once

#include "complements/controle/Causes.hpp"
#include "complements/controle/EtapesDites.hpp"
#include "complements/controle/RouteActuelle.hpp"

#include <vector>

namespace velmaris {

/// What each cause makes of the difference of intercepts, worked out by putting the told step in the place of today's,
/// one at a time. Together they are the difference, as far as rounding and second order allow.
/// @return every cause that has a part other than 0; Horizon, when the body is below it, with a part of 0
std::vector<PartCause> PartsDesCauses(const ViseeTypee &visee, const RouteActuelle &route, const EtapesDites &dites,
                                      const Etoiles &etoiles, double dut1);

} // namespace velmaris

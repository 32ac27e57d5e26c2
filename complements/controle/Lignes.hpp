#pragma once

#include "complements/controle/Controle.hpp"
#include "complements/controle/EtapesDites.hpp"
#include "complements/controle/RouteActuelle.hpp"

namespace velmaris {

/// The steps of the two roads side by side, with the reason of each difference over 0.1 minute.
/// @param visee  null when its fields are no figures
/// @param route  null when there is no figure of today
/// @param parts  all parts of the difference
/// @param ligneFautive  whether a star's row lies off its star
std::vector<LigneControle> LignesDuControle(const ResultatDit &dit, const EtapesDites &dites, const ViseeTypee *visee,
                                            const RouteActuelle *route, const std::vector<PartCause> &parts,
                                            bool ligneFautive);

} // namespace velmaris

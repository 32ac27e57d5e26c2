#pragma once

#include "shell/bureau/Bureau.hpp"

#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace velmaris {

/// Works the plan out that the fields ask for: the day beside the interface where day or ship are others than before,
/// then the moment. While a field can't be used all stays as it is.
void DemandePlanDuJour(Bureau &bureau);

/// Looks at the sky of the moment that the slider stands at.
void RegardeInstant(Bureau &bureau);

/// Looks for the moments at which the best set of each of the day's times for stars is at its best, beside the
/// interface.
void DemandeMeilleurs(Bureau &bureau);

/// The moments of a day at which a set of three, four or five bodies gives the smallest trace: one for each time for
/// stars that has a set, to the minute. Any thread may call it.
/// @return nothing when it was stopped
std::optional<std::vector<MeilleurMoment>> MeilleursMoments(const CielDuJour &ciel, const Journee &journee,
                                                            const DemandePlan &demande, const std::stop_token &arret);

/// Tells something in the plan's window until its next gesture, and in the status line for a while.
void DitPlan(Bureau &bureau, const std::string &mots);

/// Works compass and unknown body out, from what was looked at.
/// @{
void CalculeCompas(Bureau &bureau);
void CalculeInconnu(Bureau &bureau);
/// @}

} // namespace velmaris

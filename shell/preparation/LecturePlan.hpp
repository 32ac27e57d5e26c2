#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Puts the panel's figures into the plan's fields: its date and hour, else the present ones, estimated position,
/// height of eye, index; course and speed of "Estime" where they are filled.
void ReprendPanneau(Bureau &bureau);

/// Puts the present date and time into the plan's fields.
void ReprendPresent(Bureau &bureau);

/// What the fields ask for; one that can't be used is marked.
/// @return nothing where date, time or place can't be used
std::optional<DemandePlan> LitDemandePlan(Bureau &bureau);

/// Whether two plans are of one day and one ship: the sky is then the same.
bool EstDuMemeJour(const DemandePlan &a, const DemandePlan &b);

/// The unknown body as it is typed; fields that can't be used are marked.
AstreInconnu LitInconnu(Bureau &bureau);

} // namespace velmaris

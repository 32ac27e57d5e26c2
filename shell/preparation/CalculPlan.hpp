#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Works the plan out that the fields ask for: the day beside the interface where day or ship are others than before,
/// then the moment. While a field can't be used all stays as it is.
void DemandePlanDuJour(Bureau &bureau);

/// Looks at the sky of the moment that the slider stands at.
void RegardeInstant(Bureau &bureau);

/// Works compass and unknown body out, from what was looked at.
/// @{
void CalculeCompas(Bureau &bureau);
void CalculeInconnu(Bureau &bureau);
/// @}

} // namespace velmaris

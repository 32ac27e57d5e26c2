#pragma once

#include "shell/fenetres/Donnees.hpp"
#include "sights/Observation.hpp"

#include <string>

namespace velmaris {

/// What the user has to mend in a sight whose reduction has failed.
/// @param observation  as it stood when the reduction failed
/// @param numero       of the error
/// @return a sentence that begins with the field's caption; empty when no field is at fault
std::string MotsRemede(const Donnees &donnees, const Observation &observation, int numero);

} // namespace velmaris

#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// Says of each field of the sight whether it is to be mended, in words, and of the two results whether they are still
/// those of the fields. It changes no text and no value.
void JugeChamps(Bureau &bureau);

/// The words on the first field or list of the panel that is to be mended, by what it holds now.
/// @return empty for a whole sight
std::string DefautDuPanneau(const Bureau &bureau);

/// The words on the field that the user is in, or else on the first one that is to be mended.
/// @return empty when none is, or the sight's module doesn't show
std::string MotsAlerte(const Bureau &bureau);

} // namespace velmaris

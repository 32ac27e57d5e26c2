#pragma once

#include <array>
#include <string>

namespace velmaris {

/// The numbered texts, 0 to 100, that code composes with; empty until a language file is read.
using TexteMsg = std::array<std::string, 101>;

} // namespace velmaris

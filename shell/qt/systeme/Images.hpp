#pragma once

#include "shell/bureau/Ports.hpp"

#include <QImage>

#include <string>

namespace velmaris {
struct Surface;
}

namespace velmaris::qt {

/// The picture of a surface, by day.
QImage ImageDe(const Surface &surface);

/// The bytes of a file with the picture of a surface, by day.
/// @return empty when it can't be made
std::string OctetsImage(const Surface &surface, FormeImage forme);

} // namespace velmaris::qt

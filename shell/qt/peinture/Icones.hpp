#pragma once

#include <QIcon>
#include <QImage>

#include <string_view>

namespace velmaris::qt {

/// A picture of the program by its name, drawn as vectors at whatever size is asked.
/// @param nom  as the table of controls has it; an unknown name gives an empty icon
QIcon Icone(std::string_view nom);

/// The picture of that name as it is by day, on a clear ground.
/// @param cote     of the square, the toolkit's pixels
/// @param densite  image points per pixel
QImage ImageJour(std::string_view nom, int cote, double densite);

} // namespace velmaris::qt

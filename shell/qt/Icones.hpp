#pragma once

#include <QIcon>

#include <string_view>

namespace velmaris::qt {

/// A picture of the program by its name, drawn as vectors at whatever size is asked.
/// @param nom  as the table of controls has it; an unknown name gives an empty icon
QIcon Icone(std::string_view nom);

} // namespace velmaris::qt

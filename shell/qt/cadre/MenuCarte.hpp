#pragma once

#include "shell/qt/widgets/Scene.hpp"

class QPoint;
class QWidget;

namespace velmaris::qt {

/// Opens a menu of the core at a place, with its check marks and captions as they stand. It doesn't wait: the entry
/// that is chosen is pressed in the core, and the menu goes.
/// @param menu    one of the controls of its window
/// @param parent  the window
/// @param place   on the screen
void OuvreMenu(Scene &scene, const Controle &menu, QWidget &parent, const QPoint &place);

} // namespace velmaris::qt

#pragma once

class QApplication;

namespace velmaris::qt {

/// The program's look: one style, one light palette, one type family of 9 points.
void PoseApparence(QApplication &application);

} // namespace velmaris::qt

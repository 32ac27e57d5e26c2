#pragma once

namespace velmaris::qt {

/// The program's look: one style, one light palette and one for the night, one type family of 9 points.
/// The application must be there.
void PoseApparence();

} // namespace velmaris::qt

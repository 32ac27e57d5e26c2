#pragma once

namespace velmaris::qt {

/// The program's look: one style, one light palette and one for the night, one type family of 9 points.
/// The application must be there.
void PoseApparence();

/// Has the toolkit's own words, those of its dialogs and menus, in the program's language.
/// @param francais  else English
void AccordeLangue(bool francais);

} // namespace velmaris::qt

#pragma once

namespace velmaris::qt {

/// The program's look: one style, one light palette and one for the night, one type family of 9 points.
/// The application must be there.
void PoseApparence();

/// The windows' picture: the desktop's own where its theme has one. Looking through themes takes longer than all else
/// of the look: it is for after the first window.
void PoseIcone();

/// Takes that picture anew by the light of now; before it has been set there is nothing to do.
void AccordeIcone();

/// Has the toolkit's own words, those of its dialogs and menus, in the program's language.
/// @param francais  else English
void AccordeLangue(bool francais);

} // namespace velmaris::qt

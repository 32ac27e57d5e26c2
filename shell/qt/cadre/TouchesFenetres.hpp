#pragma once

class QKeyEvent;
class QWidget;

namespace velmaris::qt {

/// The keys that windows with tabs have: control with Tab or Page Down turns to the next tab, with the shift key too or
/// with Page Up to the one before; the last is followed by the first. The keyboard goes to the tabs.
/// @return whether the key was one of these, and the window has tabs
bool TourneOnglet(const QWidget &fenetre, const QKeyEvent &appui);

/// The letter that control is pressed with: a capital, with the shift key too a small one.
/// @return 0 for another key
char LettreControle(const QKeyEvent &appui);

} // namespace velmaris::qt

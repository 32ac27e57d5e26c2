#pragma once

#include <QSize>

namespace velmaris::qt {

/// Waits until the desktop has told of its screen: a compositor may do so a moment after the program has found it.
/// Takes up no time where the screen is known, and two seconds at most.
void AttendEcran();

/// The area that the desktop leaves free on its main screen, in pixels of the toolkit; that of a small one as long as
/// there is none, so that nothing is laid out for no room at all.
QSize EcranLibre();

/// Height of the whole screen in real pixels, or of the small one.
int HauteurEcran();

} // namespace velmaris::qt

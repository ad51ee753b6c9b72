#pragma once

#include <QWidget>

namespace vantor {

/// Where a window's frame takes its colours from what the program says, rather than from the
/// desktop: on Wayland the toolkit draws it itself if the compositor does not (GNOME's), in the
/// colours that the program had when the window was made; on X11 window managers with the themes
/// of GTK look for a property of the window.
///
/// Main thread. Nothing on other displays, nor on the Mac.

/// Before the window is shown.
void frameWindow(QWidget& window);

/// After the program's palette has changed: all windows that there are.
void renewWindowFrames();

}  // namespace vantor

#pragma once

#include <memory>

#include "app/status_bar.h"

namespace vantor {

/// How programs live on a desktop.
struct DesktopWays {
    /// One menu bar serves all windows of a program and is there without any of them, too.
    bool hasOneMenuBar = false;
    /// Whoever clicks the icon of a running program activates it, and starts no second one.
    bool reopensByActivation = false;
};

// Those of the desktop that the program is built for; each has a file of its own.

DesktopWays nativeDesktopWays();

/// Needs the toolkit's application object; main thread.
std::shared_ptr<StatusBar> makeNativeStatusBar();

}  // namespace vantor

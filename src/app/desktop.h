#pragma once

#include <memory>

#include "app/tray/status_bar.h"

namespace vantor {

/// How a desktop treats programs.
struct DesktopTraits {
    /// One menu bar serves all windows of a program and is there without any of them, too.
    bool hasOneMenuBar = false;
    /// A click on the icon of a running program activates it, and starts no second one.
    bool reopensByActivation = false;
    /// Programs are opened at login by entries in the user's folder for configuration.
    bool opensByAutostartEntries = false;
};

// Those of the desktop that the program is built for; each has a file of its own.

DesktopTraits nativeDesktopTraits();

/// Needs the toolkit's application object; main thread.
std::shared_ptr<StatusBar> makeNativeStatusBar();

}  // namespace vantor

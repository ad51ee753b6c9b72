#pragma once

#include <QAbstractNativeEventFilter>

#include <functional>
#include <memory>

namespace vantor {

/// Whether the X display has a tray that embeds icons now. Asks the display's server and not the
/// toolkit, whose first answer is final, for the session's bus too. False without an X display.
bool hasEmbeddingTray();

/// Calls `onChange` on the main thread when such a tray may have come or gone, as long as what is
/// returned lives; it must not outlive the application. Nothing without an X display.
///
/// A tray announces itself to the root window, whose events the toolkit asks for, and its window
/// is destroyed when it ends.
std::unique_ptr<QAbstractNativeEventFilter> watchEmbeddingTrays(std::function<void()> onChange);

}  // namespace vantor

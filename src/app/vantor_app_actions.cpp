#include <array>

#include "app/vantor_app.h"
#include "app/window/window_activation.h"

namespace vantor {

void VantorApp::begin(AppAction action) {
    if (action == AppAction::background) return beginInBackground();
    openDashboard();
    if (action != AppAction::activate) perform({action});
}

/// A tray may come up to a minute later, as at the start of a session: see waitForTray.
void VantorApp::beginInBackground() {
    if (!menuBar_->hasStatusItem()) return openDashboard();
    monitor_->start();  // otherwise the dashboard does that
    scheduleSettling();
}

void VantorApp::perform(const Activation& activation) {
    if (!monitor_) return;
    switch (activation.action) {
        case AppAction::activate:
            return reopen(activation.token);
        case AppAction::pause:
            if (!monitor_->isPaused()) monitor_->togglePause();
            return;
        case AppAction::resume:
            if (monitor_->isPaused()) monitor_->togglePause();
            return;
        case AppAction::refresh:
            return monitor_->forceRefresh();
        case AppAction::exportSnapshot:
            reopen(activation.token);  // the dialog belongs to a window
            return monitor_->exportSnapshot();
        case AppAction::settings:
            return openSettings(activation.token);
        case AppAction::background:
            return hideInTray();
    }
}

/// Windows are closed as the user would close them; without a tray nothing would lead back.
void VantorApp::hideInTray() {
    if (!menuBar_->hasStatusItem() || !statusBar_->isAvailable()) return;
    const std::array<QWidget*, 3> windows{help_.window(), settingsWindow_.get(), dashboardWindow()};
    for (QWidget* const window : windows) {
        if (window) window->close();
    }
}

}  // namespace vantor

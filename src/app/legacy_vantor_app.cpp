#include "app/legacy_vantor_app.h"

#include "ui/menu_bar/menu_bar_dashboard_view.h"

namespace vantor {

LegacyVantorApp::LegacyVantorApp(Environment environment)
    : VantorApp(std::move(environment)), dashboard_([this] {
          return makeDashboardWindow(
              QString::fromLatin1(LegacyDashboardWindowController::frameAutosaveName));
      }) {
    auto menuBar = std::make_unique<LegacyMenuBarController>(statusBar(), menuBarActions(), [this] {
        return std::make_unique<MenuBarDashboardView>(panelEnvironment(),
                                                      [this] { openDashboard(); });
    });
    LegacyLifecycleBridge(versions(), *menuBar).update(sharedSettings(), sharedMonitor());
    adoptMenuBar(std::move(menuBar));
}

LegacyVantorApp::~LegacyVantorApp() {
    shutDown(std::chrono::milliseconds::zero());
}

bool LegacyVantorApp::shutDown(std::chrono::milliseconds patience) {
    keepWindowGeometry();
    dashboard_.release();
    return VantorApp::shutDown(patience);
}

}  // namespace vantor

#include "app/modern_vantor_app.h"

#include "app/window/window_activation.h"
#include "ui/menu_bar/modern_menu_bar_dashboard_host.h"

namespace vantor {

ModernVantorApp::ModernVantorApp(Environment environment) : VantorApp(std::move(environment)) {
    auto menuBar = std::make_unique<MenuBarController>(statusBar(), menuBarActions(), [this] {
        return std::make_unique<ModernMenuBarDashboardHost>(
            panelEnvironment(), [this](const QString& identifier) { openWindow(identifier); });
    });
    menuBar->configure(sharedSettings(), sharedMonitor());
    adoptMenuBar(std::move(menuBar));
}

ModernVantorApp::~ModernVantorApp() {
    shutDown(std::chrono::milliseconds::zero());
}

void ModernVantorApp::openDashboard() {
    openWindow(QStringLiteral("dashboard"));
}

void ModernVantorApp::openWindow(const QString& identifier) {
    if (identifier != QStringLiteral("dashboard")) return;
    closePopover();  // it would stay above the window that it opens
    if (!window_) window_ = makeDashboardWindow(identifier);
    bringToFront(*window_, {});
}

bool ModernVantorApp::shutDown(std::chrono::milliseconds patience) {
    keepWindowGeometry();
    window_.reset();
    return VantorApp::shutDown(patience);
}

}  // namespace vantor

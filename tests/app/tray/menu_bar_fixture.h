#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include <chrono>

#include "app/legacy_vantor_app.h"
#include "app/modern_vantor_app.h"
#include "app/tray/fake_status_bar.h"
#include "platform/simulated/simulated_machine.h"
#include "support/event_patience.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/menu_bar/modern_menu_bar_dashboard_host.h"
#include "ui/rendering.h"
#include "ui/settings/settings_view.h"

namespace vantor {

/// The whole program in either variant, with a tray of the test's own.
class MenuBarOf : public testing::TestWithParam<int> {
  protected:
    QTemporaryDir folder;
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    std::shared_ptr<FakeStatusBar> tray = std::make_shared<FakeStatusBar>();
    int quits = 0;
    TrayPatience patience;
    std::unique_ptr<VantorApp> app;

    void start() {
        machine->processInfo().version = {GetParam(), 0, 0};
        app = makeVantorApp({machine,
                             folder.filePath(QStringLiteral("settings.ini")),
                             tray,
                             [this] { ++quits; },
                             {},
                             {},
                             patience});
    }
    void TearDown() override {
        app.reset();
        QApplication::setPalette(paletteOf(ColorScheme::dark));
    }
    MenuBarController& menuBar() { return app->menuBar(); }
    MenuBarDashboardView& panel() {
        QWidget& content = menuBar().popover()->content();
        auto* const view = dynamic_cast<MenuBarDashboardView*>(&content);
        return view ? *view : dynamic_cast<ModernMenuBarDashboardHost&>(content).view();
    }
    void press() { tray->content().onPress({1400, 0, 24, 24}); }
    void closeDashboard() { closeAsUser(*app->dashboardWindow()); }

    /// The toolkit tells of the last window's end only while its loop runs.
    static void closeAsUser(QWidget& window) {
        const auto later = [](auto&& run) {
            QMetaObject::invokeMethod(qApp, run, Qt::QueuedConnection);
        };
        later([&] {
            window.close();
            later([] { QCoreApplication::exit(); });
        });
        QApplication::exec();
    }
    const StatusMenuEntry& entry(const char* title) {
        entries_ = tray->content().menu();
        for (const StatusMenuEntry& one : entries_) {
            if (one.title == QString::fromUtf8(title)) return one;
        }
        ADD_FAILURE() << "no entry " << title;
        return entries_.front();
    }

  private:
    std::vector<StatusMenuEntry> entries_;
};

}  // namespace vantor

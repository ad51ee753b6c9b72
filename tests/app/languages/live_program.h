#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <chrono>
#include <memory>
#include <string>

#include "app/tray/fake_status_bar.h"
#include "app/vantor_app.h"
#include "platform/simulated/simulated_machine.h"
#include "ui/explorer/process_explorer_view.h"
#include "ui/rendering.h"

namespace vantor {

/// The whole program on a simulated laptop with some processes.
struct LiveProgram {
    QTemporaryDir folder;
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    std::unique_ptr<VantorApp> app =
        makeVantorApp({machine, folder.filePath(QStringLiteral("settings.ini")),
                       std::make_shared<FakeStatusBar>(), [] {}});

    LiveProgram() = default;
    LiveProgram(const LiveProgram&) = delete;
    LiveProgram& operator=(const LiveProgram&) = delete;
    ~LiveProgram() {
        app->shutDown(std::chrono::seconds(5));  // else a reading may end in a program that is gone
        app.reset();
        QApplication::setPalette(paletteOf(ColorScheme::dark));
    }

    ProcessTableView& table() const {
        return app->dashboardWindow()->dashboard().explorer().table();
    }

    /// Opens the dashboard, and waits until it has figures and processes.
    void goLive() {
        machine->hostProcessors().growth = {30, 10, 60, 0};
        for (int pid = 100; pid < 120; ++pid)
            machine->processTable().add(pid, "/usr/bin/program" + std::to_string(pid));
        app->settings().setRefreshInterval(0.5);
        app->openDashboard();
        QElapsedTimer patience;
        patience.start();
        while (app->dashboardWindow()->windowIconText() != u"Vantor" || table().rowCount() == 0) {
            ASSERT_FALSE(patience.hasExpired(10'000)) << "no live figures";
            machine->clock()->wind(std::chrono::milliseconds(20));
            QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        }
        settleEvents();
    }
};

}  // namespace vantor

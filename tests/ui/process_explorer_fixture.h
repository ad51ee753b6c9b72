#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScrollArea>
#include <QShortcut>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/simulated_machine.h"
#include "ui/components/make_child.h"
#include "ui/cpu_samples.h"
#include "ui/explorer/process_columns.h"
#include "ui/explorer/process_explorer_view.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

/// How the explorer follows the user and the readings.

namespace vantor {

class ProcessExplorerViewTest : public testing::Test {
  protected:
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop(clock);
    std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    ProcessExplorerView view{machine->processInfo(), loop};
    DashboardState state;
    PaintCount paints;

    ProcessExplorerViewTest() {
        state.snapshot.processes = state.processesByCPU = state.processesByMemory = manyProcesses();
        std::ranges::reverse(state.processesByMemory);
    }
    void showProcesses() {
        ++state.revisions.processes;
        view.show(ProcessExplorer::of(state));
    }
    void open() {
        view.resize(900, view.sizeHint().height());
        view.setVisible(true);
        settleEvents();
        paints.watch(view);
    }
    void wait(std::chrono::nanoseconds by) {
        clock->setNow(clock->now() + by);
        while (loop->runDueTimer()) {
        }
    }
    void type(const char* text) { view.filter().setText(QString::fromUtf8(text)); }
    std::string firstName() { return utf8(view.table().rowTexts(0).at(0)); }
};

}  // namespace vantor

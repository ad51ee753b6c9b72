#include "app/vantor_app.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

#include <chrono>
#include <future>
#include <memory>
#include <thread>

#include "app/tray/fake_status_bar.h"
#include "platform/simulated/simulated_machine.h"
#include "sampling/fake_export_platform.h"
#include "ui/cards/cpu_card.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/explorer/process_explorer_view.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::vantor_app_test {
namespace {

using namespace std::chrono_literals;

class VantorAppTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("settings.ini"));
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();

    std::unique_ptr<VantorApp> start() {
        return makeVantorApp({machine, file, std::make_shared<FakeStatusBar>(), [] {}});
    }
    void TearDown() override { QApplication::setPalette(paletteOf(ColorScheme::dark)); }

    template <class Condition>
    static bool runUntil(Condition&& condition) {
        QElapsedTimer patience;
        patience.start();
        while (!condition()) {
            if (patience.hasExpired(10'000)) return false;
            QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        }
        return true;
    }
};

TEST_F(VantorAppTest, MakesTheWindowWhenItIsOpenedAndKeepsIt) {
    const auto program = start();
    VantorApp& app = *program;
    EXPECT_EQ(app.dashboardWindow(), nullptr);
    app.openDashboard();
    DashboardWindow* const window = app.dashboardWindow();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(utf8(window->windowTitle()), "Vantor");
    EXPECT_EQ(DashboardWindow::defaultSize, QSize(1280, 820));
    EXPECT_EQ(window->minimumSize(), QSize(720, 560));
    EXPECT_FALSE(window->windowIcon().isNull());
    app.openDashboard();
    EXPECT_EQ(app.dashboardWindow(), window);
}

TEST_F(VantorAppTest, ShowsLiveFiguresAndSaysSoByTheNameOfItsIcon) {
    machine->hostProcessors().growth = {30, 10, 60, 0};
    const auto program = start();
    VantorApp& app = *program;
    app.settings().setRefreshInterval(0.5);
    app.openDashboard();
    DashboardWindow& window = *app.dashboardWindow();
    EXPECT_EQ(utf8(window.windowIconText()), "Vantor (collecting live data)");
    ASSERT_TRUE(runUntil([&] {
        machine->clock()->wind(20ms);
        return window.windowIconText() == QStringLiteral("Vantor");
    }));
    EXPECT_EQ(utf8(window.dashboard().card<CPUCardView>().gauge().gauge().title), "40%");
    EXPECT_TRUE(app.shutDown(5s));
}

TEST_F(VantorAppTest, KeepsPreferencesInTheFileItIsGiven) {
    start()->settings().setRefreshInterval(10);
    EXPECT_DOUBLE_EQ(start()->settings().refreshInterval(), 10);
}

TEST_F(VantorAppTest, EndsBeforeItsWindowWasOpened) {
    const auto program = start();
    VantorApp& app = *program;
    EXPECT_TRUE(app.shutDown(1s));
}

TEST_F(VantorAppTest, AProbeThatHangsDelaysTheEndByNoMoreThanThePatience) {
    std::promise<void> hung;
    std::promise<void> release;
    machine->hostProcessors().onTotalTicks = [&, waiting = release.get_future().share(),
                                              once = std::make_shared<bool>(true)] {
        if (std::exchange(*once, false)) hung.set_value();
        waiting.wait();
    };
    const auto program = start();
    VantorApp& app = *program;
    app.openDashboard();
    auto isHung = hung.get_future();
    ASSERT_TRUE(runUntil([&] { return isHung.wait_for(0s) == std::future_status::ready; }));
    QElapsedTimer watch;
    watch.start();
    EXPECT_FALSE(app.shutDown(30ms));
    EXPECT_LT(watch.elapsed(), 500);
    EXPECT_EQ(app.dashboardWindow(), nullptr);
    release.set_value();
    EXPECT_TRUE(app.shutDown(5s)) << "once the probe answers, nothing is left running";
}

class VantorAppExportTest : public VantorAppTest {
  protected:
    /// A program that is writing a snapshot to a disk that takes its time.
    void startWriting() {
        user.onWrite = [this, mayEnd = release.get_future().share()] {
            begun.set_value();
            mayEnd.wait();
        };
        app = makeVantorApp(
            {machine, file, std::make_shared<FakeStatusBar>(), [] {}, user.platform()});
        app->openDashboard();
        click(app->dashboardWindow()->dashboard().header().exportButton());
        ASSERT_EQ(user.requests.size(), 1u);
        user.confirm("/somewhere/a.json");
        ASSERT_EQ(begun.get_future().wait_for(10s), std::future_status::ready);
    }

    FakeExportPlatform user;
    std::promise<void> begun;
    std::promise<void> release;
    std::unique_ptr<VantorApp> app;
};

TEST_F(VantorAppExportTest, TheEndLetsASnapshotBeWrittenToItsEnd) {
    startWriting();
    std::thread disk([this] {
        std::this_thread::sleep_for(100ms);
        release.set_value();
    });
    app->shutDown(0ms);  // patience that is for probes
    EXPECT_EQ(user.writes.size(), 1u);
    disk.join();
    EXPECT_TRUE(app->shutDown(5s));
    EXPECT_TRUE(user.alerts.empty());
}

TEST_F(VantorAppExportTest, ADiskThatHangsDelaysTheEndByThreeSecondsAtMost) {
    startWriting();
    QElapsedTimer watch;
    watch.start();
    EXPECT_FALSE(app->shutDown(10ms));
    EXPECT_LT(watch.elapsed(), 4000);
    EXPECT_EQ(app->dashboardWindow(), nullptr);
    release.set_value();
    EXPECT_TRUE(app->shutDown(5s));
}

TEST_F(VantorAppExportTest, TheEndClosesADialogAndWritesNothing) {
    app = makeVantorApp({machine, file, std::make_shared<FakeStatusBar>(), [] {}, user.platform()});
    app->openDashboard();
    click(app->dashboardWindow()->dashboard().header().exportButton());
    EXPECT_EQ(user.openDialogs, 1);
    EXPECT_TRUE(app->shutDown(5s));
    EXPECT_EQ(user.openDialogs, 0);
    EXPECT_TRUE(user.writes.empty());
}

/// Runs the whole program in a process of its own.
struct Outcome {
    bool ended = false;
    int status = -1;
    qint64 millisecondsToEnd = 0;  ///< after the program was asked to quit
    QByteArray errors;
};

Outcome runProgram(const QStringList& arguments, const QString& home, bool hasDisplay = true) {
    QProcess program;
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    surroundings.insert(QStringLiteral("XDG_CONFIG_HOME"), home);
    for (const char* const display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        surroundings.remove(QString::fromLatin1(display));
    if (hasDisplay)
        surroundings.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    // Or one that another test started would be the first program of this session.
    surroundings.insert(QStringLiteral("XDG_RUNTIME_DIR"), home);
    surroundings.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    program.setProcessEnvironment(surroundings);
    program.start(QStringLiteral(VANTOR_QUITTING_PROGRAM), arguments);
    Outcome run;
    while (!program.canReadLine()) {
        if (!program.waitForReadyRead(20'000)) break;
    }
    QElapsedTimer watch;
    watch.start();
    // Nothing is waited for when its end was noticed while its line was.
    const bool isGone = program.state() == QProcess::NotRunning || program.waitForFinished(20'000);
    run.ended = isGone && program.exitStatus() == QProcess::NormalExit;
    run.millisecondsToEnd = watch.elapsed();
    run.status = program.exitCode();
    run.errors = program.readAllStandardError();
    if (!run.ended) program.kill();
    return run;
}

/// Milliseconds, on a busy machine; what waits for something waits for three seconds or more.
constexpr int atOnce = 2500;

TEST_F(VantorAppTest, TheProgramQuitsAtOnceWhileAProbeHangsForEver) {
    const Outcome run = runProgram({QStringLiteral("hanging")}, folder.path());
    ASSERT_TRUE(run.ended) << run.errors.toStdString();
    EXPECT_EQ(run.status, 7) << run.errors.toStdString();
    EXPECT_LT(run.millisecondsToEnd, atOnce);
}

TEST_F(VantorAppTest, TheProgramQuitsOrderlyWhenAllProbesAnswer) {
    const Outcome run = runProgram({QStringLiteral("answering")}, folder.path());
    ASSERT_TRUE(run.ended) << run.errors.toStdString();
    EXPECT_EQ(run.status, 7) << run.errors.toStdString();
    EXPECT_LT(run.millisecondsToEnd, atOnce);
}

TEST_F(VantorAppTest, WithoutADisplayItSaysSoInASentenceAndEndsInsteadOfAborting) {
    const Outcome run = runProgram({QStringLiteral("answering")}, folder.path(), false);
    ASSERT_TRUE(run.ended) << run.errors.toStdString();
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors.toStdString(),
              "vantor: no display could be opened; please start it from a desktop session.\n");
}

TEST_F(VantorAppTest, ArgumentsOfTheToolkitAreRefusedInALine) {
    const Outcome run = runProgram({QStringLiteral("answering"), QStringLiteral("-platform"),
                                    QStringLiteral("there is none of this name")},
                                   folder.path());
    ASSERT_TRUE(run.ended) << run.errors.toStdString();
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors.toStdString(),
              "vantor: unknown option '-platform'; 'vantor --help' lists the options.\n");
}

TEST_F(VantorAppTest, SettingsAndHelpOpenLargeEnoughForALargeFont) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.5);
    QApplication::setFont(large);
    const auto program = start();
    program->openSettings();
    program->openHelp();
    settleEvents();
    const QSize room = program->settingsWindow()->screen()->availableSize();
    for (ContentWindow* const window : {program->settingsWindow(), program->helpWindow()}) {
        const QSize wanted = window->content().sizeHint().boundedTo(room - QSize(16, 48));
        EXPECT_GE(window->width(), wanted.width()) << utf8(window->windowTitle());
        EXPECT_GE(window->height(), wanted.height()) << utf8(window->windowTitle());
        EXPECT_GT(window->width(), 700) << utf8(window->windowTitle());
    }
    QApplication::setFont(usual);
}

/// Ctrl+F is the way to search: what is found has to be on the screen, too.
class SearchingAtSize : public VantorAppTest, public testing::WithParamInterface<QSize> {};

INSTANTIATE_TEST_SUITE_P(Windows, SearchingAtSize,
                         testing::Values(QSize(1280, 820), QSize(1920, 1000), QSize(720, 560)));

TEST_P(SearchingAtSize, ShowsTheRowsThatAreFoundOrThatThereAreNone) {
    const auto program = start();
    program->openDashboard();
    DashboardWindow& window = *program->dashboardWindow();
    window.resize(GetParam());
    for (int pid = 100; pid < 120; ++pid)
        machine->processTable().add(pid, "/usr/bin/program" + std::to_string(pid));
    ASSERT_TRUE(runUntil([&] {
        machine->clock()->wind(20ms);
        return !window.dashboard().explorer().table().accessibleRowLabel(0).isEmpty();
    }));
    ProcessExplorerView& view = window.dashboard().explorer();
    view.focusFilter();
    settleEvents();
    const auto isOnScreen = [&](QWidget& widget, const QRect& area) {
        return widget.visibleRegion().boundingRect().contains(area);
    };
    EXPECT_TRUE(isOnScreen(view.filter(), view.filter().rect()));
    for (int row = 0; row < 3; ++row)
        EXPECT_TRUE(isOnScreen(view.table(), view.table().accessibleRowArea(row))) << row;
    view.filter().setText(QStringLiteral("nothing has this name"));
    ASSERT_TRUE(runUntil([&] { return view.emptyState().isVisible(); }));
    // Its words stand in its middle.
    const QPoint middle = view.emptyState().rect().center();
    EXPECT_TRUE(isOnScreen(view.emptyState(), QRect(middle - QPoint(60, 40), QSize(120, 80))));
}

}  // namespace
}  // namespace vantor::vantor_app_test

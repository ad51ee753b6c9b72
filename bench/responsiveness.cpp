#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <vector>

#include "app/tray/qt_status_bar.h"
#include "app/vantor_app.h"
#include "platform/native_machine.h"
#include "ui/explorer/process_explorer_view.h"

#include "sleeping_children.h"

/// Runs the program on this machine with 3,000 more processes at its shortest interval, with a user
/// who scrolls and types all the time, and watches how long the main thread is ever busy at a
/// stretch. Exits with 1 when that is longer than a frame of 60 a second. `responsiveness SECONDS`.
namespace vantor::bench {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
using namespace std::chrono_literals;

constexpr Milliseconds frame{16};

/// How long this thread has waited for a processor that others had, so far.
Milliseconds waitedForProcessor() {
    std::ifstream file("/proc/thread-self/schedstat");
    double ran = 0;
    double waited = 0;
    file >> ran >> waited;
    return Milliseconds(waited / 1e6);
}

/// Measures each stretch from the event loop's waking to its next wait.
class Watchdog : public QObject {
  public:
    Watchdog() {
        auto* const dispatcher = QAbstractEventDispatcher::instance();
        connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] {
            start_ = Clock::now();
            waitedBefore_ = waitedForProcessor();
        });
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { end(); });
    }

    /// What came before was the program's start.
    void forget() { stretches_.clear(); }
    std::vector<double> stretches() const { return stretches_; }

  private:
    void end() {
        if (start_ == Clock::time_point()) return;
        const Milliseconds whole = Clock::now() - start_;
        stretches_.push_back((whole - (waitedForProcessor() - waitedBefore_)).count());
        start_ = {};
    }

    Clock::time_point start_;
    Milliseconds waitedBefore_{};
    std::vector<double> stretches_;
};

/// Scrolls to and fro, and types into the filter and out of it again.
class RestlessUser : public QObject {
  public:
    explicit RestlessUser(DashboardView& view) : view_(view) {
        connect(&timer_, &QTimer::timeout, this, [this] { act(); });
        timer_.start(30ms);
    }

  private:
    void act() {
        ++acts_;
        if (acts_ % 4 == 0) {
            type();
        } else {
            scroll();
        }
    }
    void scroll() {
        QWidget& page = *view_.findChild<QScrollArea*>()->viewport();
        const int turn = acts_ % 200 < 100 ? -120 : 120;
        const QPointF middle = QRectF(page.rect()).center();
        QWheelEvent wheel(middle, page.mapToGlobal(middle), {}, {0, turn}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&page, &wheel);
    }
    void type() {
        const bool isDeleting = (acts_ / 4) % 12 >= 6;
        QKeyEvent key(QEvent::KeyPress, isDeleting ? Qt::Key_Backspace : Qt::Key_S, Qt::NoModifier,
                      isDeleting ? QString() : QStringLiteral("s"));
        QApplication::sendEvent(&view_.explorer().filter(), &key);
    }

    DashboardView& view_;
    QTimer timer_;
    int acts_ = 0;
};

int report(std::vector<double> stretches) {
    std::ranges::sort(stretches);
    if (stretches.size() < 100) {
        std::fprintf(stderr, "the program hardly ran: these times mean nothing\n");
        return 2;
    }
    const auto at = [&](double share) {
        return stretches[static_cast<std::size_t>(share *
                                                  static_cast<double>(stretches.size() - 1))];
    };
    const auto over = std::ranges::count_if(stretches, [](double x) { return x > frame.count(); });
    const bool isSmooth = over == 0;
    std::printf("%-36s %9s %8s %8s %8s %6s  %s\n", "main thread busy at a stretch, ms", "stretches",
                "median", "99 %", "longest", "limit", "verdict");
    std::printf("%-36s %9zu %8.2f %8.2f %8.2f %6.1f  %s\n", "scrolling and typing, 3,000 more",
                stretches.size(), at(0.5), at(0.99), at(1), frame.count(),
                isSmooth ? "ok" : "TOO MUCH");
    return isSmooth ? 0 : 1;
}

int watch(std::chrono::seconds duration) {
    const QTemporaryDir folder;
    const auto program =
        makeVantorApp({makeNativeMachine(), folder.filePath(QStringLiteral("settings.ini")),
                       std::make_shared<QtStatusBar>(), [] {}});
    VantorApp& app = *program;
    app.settings().setRefreshInterval(0.5);
    Watchdog watchdog;
    app.openDashboard();
    RestlessUser user(app.dashboardWindow()->dashboard());
    QTimer::singleShot(3s, &watchdog, [&] { watchdog.forget(); });
    QTimer::singleShot(3s + duration, [] { QApplication::quit(); });
    QApplication::exec();
    app.shutDown(1s);
    return report(watchdog.stretches());
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    const vantor::bench::SleepingChildren children(3000);
    // The other event loop does not tell when it wakes.
    qputenv("QT_NO_GLIB", "1");
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QApplication application(argc, argv);
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 60;
    return vantor::bench::watch(std::chrono::seconds(std::max(seconds, 1)));
}

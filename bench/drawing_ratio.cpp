#include <QApplication>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleFactory>

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "ui/components/accessible_views.h"
#include "ui/dashboard_world.h"

#include "lived_machine.h"
#include "pass_row.h"
#include "verdict.h"

/// Compares drawing the whole dashboard, and what one tick changes of it, with filling the same
/// area once with a gradient, in this process and in turns. Exits with 1 when one costs too much.
namespace vantor::bench {
namespace {

using namespace std::chrono_literals;

constexpr QSize windowSize{1280, 820};
constexpr int wholeRounds = 60;
constexpr int warmUp = 8;
// Of 8 and 3 milliseconds where a gradient takes 1.
constexpr double wholeLimit = 5;
constexpr double updateLimit = 0.35;
constexpr double tickLimit = 1.8;

void fillOnce(QImage& image) {
    QPainter painter(&image);
    painter.fillRect(image.rect(), VantorTheme::background(ColorScheme::dark, image.rect()));
}

int compare(ColorScheme scheme, Form form) {
    const int rounds = form.of(wholeRounds);
    QApplication::setPalette(paletteOf(scheme));
    std::vector<LivedMachine> machines = livedMachines();
    LivedMachine machine = machines.at(1);
    DashboardWorld world(machine.clock(), machine.machine());
    world.settings->setRefreshInterval(0.5);
    DashboardView& view = world.open(windowSize);
    QScrollBar& bar = *view.findChild<QScrollArea*>()->verticalScrollBar();
    QImage background(windowSize, QImage::Format_RGB32);

    PassRow bare("one gradient over the same area", 1);
    PassRow whole("the whole window is painted", 1);
    PassRow update("a tick: views take their values", 1);
    PassRow paint("a tick: what changed is painted", 1);
    int step = 0;
    const auto round = [&] {
        bare.run([&] { fillOnce(background); });
        // Everything moves by a point, so everything is painted.
        bar.setValue(bar.value() == 0 ? 1 : 0);
        whole.run([] { QCoreApplication::sendPostedEvents(); });
        machine.live(++step);
        update.run([&] { world.advanceUnpainted(500ms); });
        paint.run([] { QCoreApplication::sendPostedEvents(); });
        settleEvents();
    };
    for (int i = 0; i < warmUp; ++i)
        round();
    for (PassRow* row : {&bare, &whole, &update, &paint})
        row->forget();
    for (int i = 0; i < rounds; ++i)
        round();
    reportHeading();
    const bool wholePasses = report(bare, whole, wholeLimit, Allocations::allowed);
    const bool updatePasses = report(bare, update, updateLimit, Allocations::allowed);
    const bool paintPasses = report(bare, paint, tickLimit, Allocations::allowed);
    return form.status(wholePasses && updatePasses && paintPasses);
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QApplication application(argc, argv);
    vantor::installViewAccessibility();
    return vantor::bench::compare(vantor::ColorScheme::dark, vantor::bench::Form(argc, argv));
}

#include <QApplication>
#include <QScrollArea>
#include <QStyleFactory>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "platform/simulated/simulated_graphics.h"
#include "platform/simulated/simulated_macs.h"
#include "ui/components/accessible_views.h"
#include "ui/dashboard_world.h"

#include "lived_machine.h"
#include "pass_row.h"
#include "verdict.h"

/// What a tick costs the main thread on simulated machines with more and more processors and
/// graphics devices, all of which change at each tick and are in sight. Prints a line for each:
/// what there are more of, how many, and the microseconds that reading them and the views' taking
/// of their values take, and those of painting what changed, divided by tabs.
namespace vantor::bench {
namespace {

using namespace std::chrono_literals;

constexpr int windowWidth = 1280;
constexpr int fewestProcessors = 8;
constexpr int rounds = 120;
constexpr int warmUp = 12;

std::shared_ptr<SimulatedMachine> furnished(std::shared_ptr<SimulatedMachine> machine,
                                            int processors, int devices) {
    machine->hostProcessors().processors.resize(static_cast<std::size_t>(processors));
    machine->graphicsDevices().devices.clear();
    machine->accelerators().services.clear();
    for (int i = 0; i < devices; ++i) {
        addGraphics(*machine, 4294968421 + static_cast<std::uint64_t>(i),
                    "Graphics " + std::to_string(i + 1),
                    {{"Device Utilization %", 0}, {"In use system memory", 0}});
    }
    return machine;
}

void workOnGraphics(SimulatedMachine& machine, int step) {
    int voice = 0;
    for (SimulatedAccelerators::Service& service : machine.accelerators().services) {
        const double share = 0.5 + 0.4 * std::sin(step * 0.3 + ++voice);
        auto& statistics = service.statistics.value();
        statistics.at(0).value = PropertyValue(static_cast<std::int64_t>(100 * share));
        statistics.at(1).value = PropertyValue(static_cast<std::int64_t>(4e9 * share));
    }
}

/// One such machine before a window with all that there is in sight.
class Subject {
  public:
    Subject(const char* kind, int count, int processors, int devices)
        : kind_(kind),
          count_(count),
          world_(clock_, furnished(machine_.machine(), processors, devices)) {
        world_.settings->setRefreshInterval(0.5);
        DashboardView& view = world_.open();
        for (int i = 0; i < warmUp; ++i)
            round();
        const QWidget& content = *view.findChild<QScrollArea*>()->widget();
        view.resize(windowWidth, content.heightForWidth(windowWidth));
        settleEvents();
        round();
        values_.forget();
        painting_.forget();
    }

    void round() {
        machine_.live(++step_);
        workOnGraphics(*machine_.machine(), step_);
        values_.run([&] { world_.advanceUnpainted(500ms); });
        painting_.run([] { QCoreApplication::sendPostedEvents(); });
        settleEvents();
    }

    void print() {
        std::printf("%s\t%d\t%.0f\t%.0f\n", kind_, count_, values_.median(), painting_.median());
    }

  private:
    const char* kind_;
    int count_;
    std::shared_ptr<FakeClock> clock_ = std::make_shared<FakeClock>();
    LivedMachine machine_{{}, makeAppleSiliconMac(SimulatedChip::m1, clock_), clock_};
    DashboardWorld world_;
    PassRow values_{"values", 1};
    PassRow painting_{"painting", 1};
    int step_ = 0;
};

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    using namespace vantor;
    using namespace vantor::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QApplication application(argc, argv);
    installViewAccessibility();
    QApplication::setPalette(paletteOf(ColorScheme::dark));
    const Form form(argc, argv);
    std::vector<std::unique_ptr<Subject>> subjects;
    for (const int processors : {fewestProcessors, 64, 512})
        subjects.push_back(std::make_unique<Subject>("processors", processors, processors, 1));
    for (const int devices : {1, 8})
        subjects.push_back(
            std::make_unique<Subject>("devices", devices, fewestProcessors, devices));
    // In turns: the speed of a machine may change within seconds.
    for (int i = 0; i < form.of(rounds); ++i) {
        for (const auto& subject : subjects)
            subject->round();
    }
    for (const auto& subject : subjects)
        subject->print();
}

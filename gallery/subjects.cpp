#include "subjects.h"

#include "platform/simulated/fake_main_loop.h"
#include "ui/card_samples.h"
#include "ui/cards/cpu_card.h"
#include "ui/cards/gpu_card.h"
#include "ui/cards/memory_card.h"
#include "ui/cards/network_card.h"
#include "ui/cards/storage_card.h"
#include "ui/cards/system_card.h"
#include "ui/components/usage_bar.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/dashboard_world.h"
#include "ui/explorer/process_explorer_view.h"

#include "view_subjects.h"

namespace vantor {

namespace {

using Maker = std::function<std::unique_ptr<QWidget>()>;

/// Views borrow their platform's versions and words; it lives as long as the gallery.
SimulatedMachine& machine() {
    static const auto laptop = SimulatedMachine::laptop();
    return *laptop;
}

template <class View, class... Arguments>
Maker make(Arguments... arguments) {
    return [=] { return std::make_unique<View>(arguments...); };
}

DashboardState stateWithProblems() {
    DashboardState state = stateWithEverything();
    state.snapshot.cpu.temperatureCelsius.reset();
    state.snapshot.cpu.nominalFrequencyHz.reset();
    state.snapshot.cpu.loadAverage.clear();
    state.processesByCPU.clear();
    state.processesByMemory.clear();
    state.snapshot.network.primaryInterfaceName.reset();
    state.snapshot.network.primaryIPv4Address.reset();
    GPUStats asleep;
    asleep.id = asleep.name = "Graphics that is asleep";
    state.snapshot.gpus = {asleep, graphics("Second Graphics")};
    state.snapshot.gpus[1].isUnifiedMemory = true;
    state.snapshot.gpus[1].recommendedWorkingSetBytes = 12 * gibibyte;
    state.snapshot.volumes.clear();
    for (int i = 0; i < 9; ++i) {
        const auto total = static_cast<std::uint64_t>(i + 1) * 500'000'000'000;
        state.snapshot.volumes.push_back(
            volume("A volume with a rather long name, number " + std::to_string(i + 1), total,
                   total / 10 * static_cast<std::uint64_t>(9 - i)));
        state.snapshot.volumes.back().isInternal = i < 2;
    }
    state.snapshot.system.thermalState = "Serious";
    state.snapshot.system.lowPowerModeEnabled = true;
    state.snapshot.power->chargeFraction = 0.13;
    return state;
}

DashboardState stateOfNothing() {
    DashboardState state = stateWithEverything();
    state.snapshot.gpus.clear();
    state.snapshot.volumes.clear();
    state.snapshot.power.reset();
    state.snapshot.system = {};
    state.snapshot.system.uptimeSeconds = -1;
    return state;
}

template <class Card, class View, class Source>
void addCard(std::vector<Subject>& all, const char* name, const Source& source) {
    using State = DashboardState (*)();
    const std::pair<const char*, State> states[]{{"", stateWithEverything},
                                                 {", with problems", stateWithProblems},
                                                 {", with nothing", stateOfNothing}};
    const QString title = QString::fromLatin1(name);
    all.push_back({title + QStringLiteral(" card, waiting"), 460,
                   [source] { return std::make_unique<View>(source()); }});
    for (const auto& [suffix, state] : states) {
        all.push_back({title + QStringLiteral(" card") + QString::fromLatin1(suffix), 460,
                       [source, state = state] {
                           auto view = std::make_unique<View>(source());
                           const DashboardState shown = state();
                           view->show(Card::of(shown));
                           return view;
                       }});
    }
}

/// An explorer and the processes that it borrows.
class HeldExplorer : public ProcessExplorerView {
  public:
    HeldExplorer(const std::vector<ProcessStats>& processes, const char* query)
        : HeldExplorer(processes, query, std::make_shared<FakeClock>()) {}

  private:
    HeldExplorer(const std::vector<ProcessStats>& processes, const char* query,
                 const std::shared_ptr<FakeClock>& clock)
        : HeldExplorer(clock, std::make_shared<FakeMainLoop>(clock)) {
        state_.snapshot.processes = state_.processesByCPU = state_.processesByMemory = processes;
        state_.revisions.processes = 1;
        show(ProcessExplorer::of(state_));
        filter().setText(QString::fromLatin1(query));
        clock->setNow(clock->now() + std::chrono::seconds(1));
        loop_->runDueTimer();
    }
    HeldExplorer(const std::shared_ptr<FakeClock>&, const std::shared_ptr<FakeMainLoop>& loop)
        : ProcessExplorerView(machine().processInfo(), loop), loop_(loop) {}

    std::shared_ptr<FakeMainLoop> loop_;
    DashboardState state_;
};

std::unique_ptr<QWidget> explorer(const std::vector<ProcessStats>& processes, const char* query) {
    return std::make_unique<HeldExplorer>(processes, query);
}

void addComponents(std::vector<Subject>& all) {
    const auto gauge = [&](double value, const char* title) {
        all.push_back(
            {QStringLiteral("Ring gauge ") + QString::fromLatin1(title), 0,
             make<RingGaugeView>(RingGauge{value, QString::fromLatin1(title),
                                           QStringLiteral("CPU Load"), VantorTheme::cyan(), 12})});
    };
    gauge(-0.3, "-30%");
    gauge(0, "0%");
    gauge(0.37, "37%");
    gauge(1.4, "140%");
    const auto line = [&](const char* name, std::vector<double> values) {
        all.push_back(
            {QString::fromLatin1(name), 240,
             make<SparklineView>(
                 QStringLiteral("history"),
                 Sparkline{std::move(values), VantorTheme::green(), std::pair{0.0, 1.0}}, 62)});
    };
    line("Sparkline", {0.1, 0.35, 0.2, 0.6, 1.4, 0.42, 0});
    line("Sparkline of equal values", {0, 0, 0, 0});
    line("Sparkline of one value", {0.5});
    for (const double value : {-0.5, 0.02, 0.5, 1.2}) {
        all.push_back(
            {QStringLiteral("Usage bar at %1").arg(value), 240,
             make<UsageBarView>(QStringLiteral("use"), UsageBar{value, VantorTheme::blue(), 7})});
    }
    all.push_back(
        {QStringLiteral("Speed tile"), 200,
         make<SpeedTileView>(SpeedTile{QStringLiteral("Download"), QStringLiteral("1.25 MB/s"),
                                       QStringLiteral("arrow.down"), VantorTheme::green()})});
    all.push_back({QStringLiteral("Labelled sparkline"), 240,
                   make<LabeledSparklineView>(LabeledSparkline{QStringLiteral("Upload"),
                                                               QStringLiteral("64 KB/s"),
                                                               {1, 5, 2, 8, 3},
                                                               VantorTheme::orange()})});
    all.push_back({QStringLiteral("Empty state"), 400,
                   make<EmptyStateView>(ProcessExplorer::noMatch(QStringLiteral("zzz")))});
    all.push_back({QStringLiteral("Capsule button"), 0,
                   make<CapsuleButtonView>(CapsuleButton{
                       QStringLiteral("Refresh"), QStringLiteral("arrow.clockwise"), {}})});
    all.push_back({QStringLiteral("Metric row"), 240,
                   make<MetricRowView>(MetricRow{QStringLiteral("Temperature"),
                                                 QStringLiteral("54 °C"), VantorTheme::purple()})});
    all.push_back({QStringLiteral("Metric row without a colour"), 240,
                   make<MetricRowView>(MetricRow{QStringLiteral("IPv4"),
                                                 QStringLiteral("192.168.1.20"), std::nullopt})});
    all.push_back({QStringLiteral("Picker"), 0, [] {
                       return std::make_unique<SegmentedPicker>(
                           QStringLiteral("Sort"),
                           QStringList{QStringLiteral("CPU"), QStringLiteral("Memory")}, nullptr);
                   }});
}

}  // namespace

std::vector<Subject> subjects() {
    std::vector<Subject> all;
    addComponents(all);
    const auto versions = []() -> const ProcessInfo& { return machine().processInfo(); };
    const auto words = []() -> const PlatformWords& { return machine().words(); };
    addCard<CPUCard, CPUCardView>(all, "CPU", versions);
    addCard<MemoryCard, MemoryCardView>(all, "Memory", versions);
    all.push_back({QStringLiteral("Network card, waiting"), 460,
                   [] { return std::make_unique<NetworkCardView>(); }});
    for (const bool isWell : {true, false}) {
        all.push_back({isWell ? QStringLiteral("Network card")
                              : QStringLiteral("Network card, with problems"),
                       460, [isWell] {
                           auto view = std::make_unique<NetworkCardView>();
                           const DashboardState state =
                               isWell ? stateWithEverything() : stateWithProblems();
                           view->show(NetworkCard::of(state));
                           return view;
                       }});
    }
    addCard<GPUCard, GPUCardView>(all, "Graphics", words);
    addCard<StorageCard, StorageCardView>(all, "Storage", words);
    addCard<SystemCard, SystemCardView>(all, "System", versions);
    all.push_back(
        {QStringLiteral("Process explorer, waiting"), 936, [] { return explorer({}, ""); }});
    all.push_back(
        {QStringLiteral("Process explorer"), 936, [] { return explorer(manyProcesses(), ""); }});
    all.push_back({QStringLiteral("Process explorer, filtered"), 936,
                   [] { return explorer(manyProcesses(), "ed"); }});
    all.push_back({QStringLiteral("Process explorer, nothing found"), 936,
                   [] { return explorer(manyProcesses(), "zzz"); }});
    addViews(all);
    return all;
}

}  // namespace vantor

#include "ui/picture.h"

#include <gtest/gtest.h>

#include <QPainter>

#include <functional>
#include <memory>

#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/simulated_machine.h"
#include "ui/card_samples.h"
#include "ui/cards/cpu_card.h"
#include "ui/cards/gpu_card.h"
#include "ui/cards/memory_card.h"
#include "ui/cards/network_card.h"
#include "ui/cards/storage_card.h"
#include "ui/cards/system_card.h"
#include "ui/components/empty_state_view.h"
#include "ui/components/usage_bar.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/explorer/process_explorer_view.h"
#include "ui/help/help_view.h"
#include "ui/menu_bar/menu_bar_dashboard_view.h"
#include "ui/rendering.h"
#include "ui/settings/settings_view.h"
#include "ui/views_world.h"

/// Every component as it is meant to look, in both schemes, on ordinary and on fine screens.
namespace vantor::picture_test {
namespace {

struct Subject {
    const char* name;
    int width;
    std::function<std::unique_ptr<QWidget>()> make;
};

template <class View, class... Arguments>
std::unique_ptr<View> makeView(Arguments&&... arguments) {
    return std::make_unique<View>(std::forward<Arguments>(arguments)...);
}

SimulatedMachine& laptop() {
    static const auto machine = SimulatedMachine::laptop();
    return *machine;
}

const DashboardState& everything() {
    static const DashboardState state = stateWithEverything();
    return state;
}

std::unique_ptr<QWidget> gauge() {
    return makeView<RingGaugeView>(CPUCard::of(stateWithCPU()).gauge());
}

std::unique_ptr<QWidget> sparkline() {
    return makeView<SparklineView>(
        QStringLiteral("history"),
        Sparkline{{0.1, 0.35, 0.2, 0.6, 1.4, 0.42, 0}, VantorTheme::green(), std::pair{0.0, 1.0}},
        62);
}

std::unique_ptr<QWidget> metricRow(std::optional<QColor> color) {
    return makeView<MetricRowView>(
        MetricRow{QStringLiteral("Temperature"), QStringLiteral("54 °C"), color});
}

std::unique_ptr<QWidget> capsuleButton() {
    return makeView<CapsuleButtonView>(
        CapsuleButton{QStringLiteral("Refresh"), QStringLiteral("arrow.clockwise"), {}});
}

std::unique_ptr<QWidget> cores() {
    auto view = std::make_unique<CoreActivityView>();
    view->show(stateWithCPU().snapshot.cpu.perCoreUsage);
    return view;
}

std::unique_ptr<QWidget> processes(std::size_t count) {
    auto view = makeView<ProcessMiniListView>(
        ProcessMiniList{QStringLiteral("Top CPU Processes"), {}, ProcessMiniList::Metric::cpu},
        std::size_t{5}, QStringLiteral("app.dashed"));
    const auto all = manyProcesses();
    view->show(std::span(all).first(count));
    return view;
}

std::unique_ptr<QWidget> pill(bool isPaused) {
    auto view = std::make_unique<StatusPillView>();
    view->show(isPaused);
    return view;
}

std::unique_ptr<QWidget> header() {
    DashboardHeader header;
    header.refreshInterval = 2;
    return makeView<DashboardHeaderView>(header, "Live macOS performance intelligence",
                                         std::nullopt);
}

template <class View, class Card, class Source>
std::unique_ptr<QWidget> cardOf(const Source& source, const DashboardState& state) {
    auto view = makeView<View>(source);
    view->show(Card::of(state));
    return view;
}

std::unique_ptr<QWidget> network() {
    auto view = std::make_unique<NetworkCardView>();
    const DashboardState state = stateWithEverything();
    view->show(NetworkCard::of(state));
    return view;
}

/// Its processes live as long as the tests.
std::unique_ptr<QWidget> explorer(const char* query) {
    static const DashboardState state = stateWithEverything();
    const auto clock = std::make_shared<FakeClock>();
    const auto loop = std::make_shared<FakeMainLoop>(clock);
    auto view = makeView<ProcessExplorerView>(laptop().processInfo(), loop);
    view->show(ProcessExplorer::of(state));
    view->filter().setText(QString::fromLatin1(query));
    clock->setNow(clock->now() + std::chrono::seconds(1));
    loop->runDueTimer();
    return view;
}

std::unique_ptr<QWidget> card(bool isWaiting) {
    auto view = makeView<CPUCardView>(SimulatedMachine::laptop()->processInfo());
    DashboardState state = stateWithCPU();
    state.processesByCPU = manyProcesses();
    state.revisions.processes = 1;
    if (!isWaiting) view->show(CPUCard::of(state));
    return view;
}

/// What scrolls is laid out only when it is shown.
std::unique_ptr<QWidget> shown(std::unique_ptr<QWidget> view) {
    view->setVisible(true);
    view->resize(view->sizeHint());
    settleEvents();
    return view;
}

std::unique_ptr<QWidget> panel(bool isWaiting, bool isPaused) {
    const ViewsWorld world;
    if (!isWaiting) world.commit(ViewsWorld::committed());
    world.pause(isPaused);
    return makeView<MenuBarDashboardView>(MenuBarDashboardView::Environment{world.monitor, {}},
                                          [] {});
}

std::unique_ptr<QWidget> settings(bool isOld) {
    static const ViewsWorld modern;
    static const ViewsWorld older;
    older.makeOld();
    const ViewsWorld& world = isOld ? older : modern;
    return shown(makeView<SettingsView>(
        SettingsView::Environment{world.settings, world.machine, world.metadata, [] {}}));
}

const std::vector<Subject>& subjects() {
    static const std::vector<Subject> all{
        {"ring_gauge", 126, gauge},
        {"sparkline", 240, sparkline},
        {"metric_row", 240, [] { return metricRow(VantorTheme::purple()); }},
        {"metric_row_plain", 240, [] { return metricRow(std::nullopt); }},
        {"capsule_button", 0, capsuleButton},
        {"core_activity", 240, cores},
        {"process_mini_list", 240, [] { return processes(5); }},
        {"process_mini_list_waiting", 240, [] { return processes(0); }},
        {"status_pill_live", 0, [] { return pill(false); }},
        {"status_pill_paused", 0, [] { return pill(true); }},
        {"header_row", 1000, header},
        {"header_stacked", 700, header},
        {"usage_bar", 240,
         [] {
             return makeView<UsageBarView>(QStringLiteral("use"),
                                           UsageBar{0.4, VantorTheme::blue(), 7});
         }},
        {"speed_tile", 200,
         [] { return makeView<SpeedTileView>(NetworkCard::of(everything()).downloadTile()); }},
        {"labeled_sparkline", 240,
         [] {
             return makeView<LabeledSparklineView>(LabeledSparkline{QStringLiteral("Upload"),
                                                                    QStringLiteral("64 KB/s"),
                                                                    {1, 5, 2, 8, 3},
                                                                    VantorTheme::orange()});
         }},
        {"empty_state", 400,
         [] { return makeView<EmptyStateView>(ProcessExplorer::noMatch(QStringLiteral("zzz"))); }},
        {"segmented_picker", 0,
         [] {
             return makeView<SegmentedPicker>(
                 QStringLiteral("Sort"),
                 QStringList{QStringLiteral("CPU"), QStringLiteral("Memory")}, nullptr);
         }},
        {"memory_card", 430,
         [] {
             return cardOf<MemoryCardView, MemoryCard>(std::cref(laptop().processInfo()),
                                                       everything());
         }},
        {"network_card", 430, network},
        {"gpu_card", 430,
         [] { return cardOf<GPUCardView, GPUCard>(std::cref(laptop().words()), everything()); }},
        {"gpu_card_empty", 430,
         [] {
             DashboardState state;
             state.answered.gpus = true;
             return cardOf<GPUCardView, GPUCard>(std::cref(laptop().words()), state);
         }},
        {"storage_card", 430,
         [] {
             return cardOf<StorageCardView, StorageCard>(std::cref(laptop().words()), everything());
         }},
        {"system_card", 430,
         [] {
             return cardOf<SystemCardView, SystemCard>(std::cref(laptop().processInfo()),
                                                       everything());
         }},
        {"process_explorer", 700, [] { return explorer(""); }},
        {"process_explorer_nothing_found", 700, [] { return explorer("zzz"); }},
        {"menu_bar_waiting", 0, [] { return panel(true, false); }},
        {"menu_bar_live", 0, [] { return panel(false, false); }},
        {"menu_bar_paused", 0, [] { return panel(false, true); }},
        {"settings", 0, [] { return settings(false); }},
        {"settings_older", 0, [] { return settings(true); }},
        {"help", 0,
         [] { return shown(makeView<HelpView>(laptop().processInfo(), laptop().words())); }},
        {"cpu_card", 430, [] { return card(false); }},
        {"cpu_card_waiting", 430, [] { return card(true); }},
    };
    return all;
}

/// The widget in its own size on the background that it stands on in the window.
QImage pictureOf(QWidget& widget, int width, ColorScheme scheme, int scale) {
    widget.setPalette(paletteOf(scheme));
    QSize size = widget.sizeHint();
    if (width > 0) size.setWidth(width);
    if (widget.hasHeightForWidth()) size.setHeight(widget.heightForWidth(size.width()));
    const QImage drawn = rendered(widget, size, scheme, scale);
    QImage image(drawn.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(image.rect(), VantorTheme::background(scheme, image.rect()));
    painter.drawImage(image.rect(), drawn, drawn.rect());
    return image;
}

using Setting = std::tuple<std::size_t, ColorScheme, int>;

std::string nameOf(const Setting& setting) {
    const auto& [subject, scheme, scale] = setting;
    return std::string(subjects().at(subject).name) +
           (scheme == ColorScheme::dark ? "_dark" : "_light") + (scale == 2 ? "_fine" : "");
}

class Picture : public testing::TestWithParam<Setting> {};

INSTANTIATE_TEST_SUITE_P(Of, Picture,
                         testing::Combine(testing::Range(std::size_t{0}, subjects().size()),
                                          testing::Values(ColorScheme::dark, ColorScheme::light),
                                          testing::Values(1, 2)),
                         [](const auto& test) { return nameOf(test.param); });

TEST_P(Picture, LooksAsAgreed) {
    const auto& [index, scheme, scale] = GetParam();
    const Subject& subject = subjects().at(index);
    const auto widget = subject.make();
    EXPECT_TRUE(looksLike(pictureOf(*widget, subject.width, scheme, scale), nameOf(GetParam())));
}

}  // namespace
}  // namespace vantor::picture_test

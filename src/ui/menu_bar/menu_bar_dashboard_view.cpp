#include "ui/menu_bar/menu_bar_dashboard_view.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

#include "ui/components/make_child.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr int menuBarPadding = 16;
constexpr int menuBarRowSpacing = 10;
constexpr int menuBarTileSpacing = 10;
constexpr int actionSpacing = 6;
constexpr double panelWidth = 330;
constexpr int panelHeight = 250;

}  // namespace

MenuBarDashboardView::MenuBarDashboardView(Environment environment,
                                           std::function<void()> onOpenDashboard, QWidget* parent)
    : BackgroundView(parent), environment_(std::move(environment)) {
    auto* column = makeLayout<QVBoxLayout>(this);
    column->setContentsMargins(menuBarPadding, menuBarPadding, menuBarPadding, menuBarPadding);
    column->setSpacing(menuBarRowSpacing);
    addHeader(*column);
    addFigures(*column, MenuBarDashboard::of({}, false));
    column->addStretch();
    addActions(*column, std::move(onOpenDashboard));
    show(MenuBarDashboard::of(environment_.monitor->dashboardState(),
                              environment_.monitor->isPaused()));
    setFocusProxy(open_->isEnabled() ? open_ : pause_);
}

void MenuBarDashboardView::addHeader(QVBoxLayout& column) {
    auto* row = makeInnerLayout<QHBoxLayout>();
    row->addWidget(makeChild<MenuBarTitleView>(this));
    row->addStretch();
    status_ = makeChild<StatusDotView>(this);
    row->addWidget(status_);
    column.addLayout(row);
}

void MenuBarDashboardView::addFigures(QVBoxLayout& column, const MenuBarDashboard& waiting) {
    cpu_ = makeChild<MenuMetricView>(this, waiting.cpu);
    memory_ = makeChild<MenuMetricView>(this, waiting.memory);
    download_ = makeChild<SpeedTileView>(this, waiting.download, SpeedTileView::Background::none);
    upload_ = makeChild<SpeedTileView>(this, waiting.upload, SpeedTileView::Background::none);
    const auto addPair = [&](QWidget* leading, QWidget* trailing) {
        auto* row = makeInnerLayout<QHBoxLayout>();
        row->setSpacing(menuBarTileSpacing);
        row->addWidget(leading, 1);
        row->addWidget(trailing, 1);
        column.addLayout(row);
    };
    addPair(cpu_, memory_);
    addPair(download_, upload_);
}

void MenuBarDashboardView::addActions(QVBoxLayout& column, std::function<void()> onOpenDashboard) {
    const auto button = [&](const QString& title, const QString& symbol,
                            std::function<void()> action) {
        auto* made =
            makeChild<CapsuleButtonView>(this, CapsuleButton{title, symbol, std::move(action)});
        made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        return made;
    };
    const auto& monitor = environment_.monitor;
    const bool canOpen = onOpenDashboard != nullptr;
    open_ = button(
        //: a button
        translate("MenuBarDashboard", "Open Dashboard"), QStringLiteral("square.grid.2x2"),
        std::move(onOpenDashboard));
    open_->setEnabled(canOpen);
    pause_ = button(
        //: a button: stop reading
        translate("MenuBarDashboard", "Pause"), QStringLiteral("pause.fill"),
        [monitor] { monitor->togglePause(); });
    pause_->reserveWidthFor(
        //: a button: go on reading
        translate("MenuBarDashboard", "Resume"));
    refresh_ = button(
        //: a button: read everything now
        translate("MenuBarDashboard", "Refresh"), QStringLiteral("arrow.clockwise"),
        [monitor] { monitor->forceRefresh(); });
    quit_ = button(
        //: a button: end the program
        translate("MenuBarDashboard", "Quit"), QStringLiteral("power"), environment_.onQuit);
    auto* actions = makeInnerLayout<QVBoxLayout>();
    actions->setSpacing(actionSpacing);
    actions->addWidget(open_);
    auto* row = makeInnerLayout<QHBoxLayout>();
    row->setSpacing(actionSpacing);
    for (CapsuleButtonView* other : {pause_, refresh_, quit_})
        row->addWidget(other);
    actions->addLayout(row);
    column.addLayout(actions);
}

QSize MenuBarDashboardView::sizeHint() const {
    // A larger font makes it wider in proportion, and just as much higher as the texts are.
    const QSize panel(Typography::scaled(panelWidth), panelHeight);
    return panel.expandedTo(layout()->minimumSize());
}

void MenuBarDashboardView::show(const MenuBarDashboard& dashboard) {
    status_->show(dashboard.statusColor(), dashboard.statusText());
    cpu_->show(dashboard.cpu);
    memory_->show(dashboard.memory);
    download_->show(dashboard.download);
    upload_->show(dashboard.upload);
    pause_->show(dashboard.pauseTitle(), dashboard.pauseSymbol());
}

void MenuBarDashboardView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    SystemMonitor& monitor = *environment_.monitor;
    stateObservation_ =
        monitor.dashboardStateStream().observe([this, &monitor](const DashboardState& state) {
            show(MenuBarDashboard::of(state, monitor.isPaused()));
        });
    pauseObservation_ = monitor.isPausedStream().observe([this, &monitor](const bool& isPaused) {
        show(MenuBarDashboard::of(monitor.dashboardState(), isPaused));
    });
    show(MenuBarDashboard::of(monitor.dashboardState(), monitor.isPaused()));
}

void MenuBarDashboardView::hideEvent(QHideEvent* event) {
    stateObservation_.cancel();
    pauseObservation_.cancel();
    QWidget::hideEvent(event);
}

}  // namespace vantor

#include "ui/dashboard/dashboard_view.h"

#include <QMenuBar>
#include <QPainter>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

#include "ui/components/chart_view.h"
#include "ui/components/make_child.h"
#include "ui/components/text_line.h"
#include "ui/dashboard/aligned_column.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/dashboard/horizontal_fit.h"
#include "ui/dashboard/scroll_view.h"
#include "ui/explorer/process_explorer_view.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr int outerPadding = 20;
constexpr int paddingUnderMenuBar = 6;
constexpr int partSpacing = 18;
constexpr int footerGap = 16;
constexpr int footerSpacing = 4;
constexpr double headerBreakpoint = 900;
constexpr double footerBreakpoint = 720;
constexpr int fewestProcesses = 3;
constexpr int mostProcesses = 5;
// What is above and below the list of processes up to the end of the next row's rings, and of its
// cards.
constexpr double heightBesidesRows = 716;
constexpr double heightBesidesWideRows = 980;

}  // namespace

DashboardView::DashboardView(Environment environment, QWidget* parent)
    : BackgroundView(parent), environment_(std::move(environment)) {
    build();
    observe();
}

DashboardView::~DashboardView() = default;

/// Systems that can measure what fits need none.
std::optional<double> DashboardView::breakpoint(double legacy) const {
    const bool measuresFit = environment_.machine->processInfo().isOperatingSystemAtLeast(13, 0, 0);
    return measuresFit ? std::nullopt : std::optional(legacy);
}

void DashboardView::build() {
    auto* content = makeChild<QWidget>(this);
    auto* column = std::make_unique<AlignedColumn>(environment_.dashboardColumns,
                                                   DashboardCards::count, content)
                       .release();
    column->setContentsMargins(outerPadding, outerPadding, outerPadding, outerPadding);
    column->setSpacing(partSpacing);
    addHeader(content);
    addCards(content);
    column->addStretch();
    addFooter(content);
    auto* whole = makeLayout<QVBoxLayout>(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(makeScrollView(content));
}

void DashboardView::setMenuBar(QMenuBar* bar) {
    layout()->setMenuBar(bar);
    if (bar->isNativeMenuBar()) return;
    // The bar has the space above the content.
    QLayout& content = *findChild<QScrollArea*>()->widget()->layout();
    content.setContentsMargins(outerPadding, paddingUnderMenuBar, outerPadding, outerPadding);
    fitFirstScreen();
}

void DashboardView::addHeader(QWidget* content) {
    const auto& settings = environment_.settings;
    const auto& monitor = environment_.monitor;
    DashboardHeader header;
    header.refreshInterval = settings->refreshInterval();
    header.isPaused = monitor->isPaused();
    header.onRefreshIntervalChange = [s = settings](double v) { s->setRefreshInterval(v); };
    header.onTogglePause = [m = monitor] { m->togglePause(); };
    header.onRefresh = [m = monitor] { m->forceRefresh(); };
    header.onExport = [m = monitor] { m->exportSnapshot(); };
    header.onQuit = environment_.onQuit;
    header_ = makeChild<DashboardHeaderView>(content, std::move(header),
                                             environment_.machine->words().subtitle,
                                             breakpoint(headerBreakpoint));
    content->layout()->addWidget(header_);
}

void DashboardView::addCards(QWidget* content) {
    const ProcessInfo& versions = environment_.machine->processInfo();
    auto* grid = makeInnerLayout<AdaptiveGridLayout>(environment_.dashboardColumns);
    cards_.emplace(content, *environment_.machine);
    cards_->forEachView([&](QWidget* card) { grid->addWidget(card); });
    for (QWidget* part : content->findChildren<QWidget*>()) {
        auto* const chart = dynamic_cast<ChartView*>(part);
        if (chart) chart->setClock([&versions] { return versions.systemUptime(); });
    }
    auto* column = static_cast<QVBoxLayout*>(content->layout());
    column->addLayout(grid);
    explorer_ = makeChild<ProcessExplorerView>(content, versions, environment_.mainLoop);
    column->addWidget(explorer_);
}

void DashboardView::addFooter(QWidget* content) {
    const auto line = [&](const QString& text) {
        return makeChild<TextLineView>(content, text, Typography::caption, QFont::Normal,
                                       TextLineView::Tone::secondary);
    };
    lastUpdate_ = line(lastUpdateText_.of(SystemSnapshot::empty().timestamp, locale()));
    footer_ = makeChild<VantorHorizontalFit>(
        content, line(QStringLiteral("Vantor %1").arg(environment_.metadata.version())),
        lastUpdate_, footerGap, footerSpacing, breakpoint(footerBreakpoint));
    content->layout()->addWidget(footer_);
}

QWidget* DashboardView::makeScrollView(QWidget* content) {
    const bool isModern = environment_.machine->processInfo().isOperatingSystemAtLeast(13, 0, 0);
    LegacyVantorScrollView* view = nullptr;
    if (isModern) {
        view = makeChild<VantorScrollView>(this, Qt::Vertical);
    } else {
        view = makeChild<LegacyVantorScrollView>(this, Qt::Vertical);
    }
    view->setWidget(content);
    setFocusProxy(view);
    content->setAutoFillBackground(false);  // setWidget turns it on, and the background is ours
    return view;
}

void DashboardView::observe() {
    stateObservation_ = environment_.monitor->dashboardStateStream().observe(
        [this](const DashboardState& state) { showIfSeen(state); });
    pauseObservation_ = environment_.monitor->isPausedStream().observe([this](const bool& paused) {
        header_->show(environment_.settings->refreshInterval(), paused);
    });
    intervalObservation_ =
        environment_.settings->refreshIntervalStream().observe([this](const double& interval) {
            header_->show(interval, environment_.monitor->isPaused());
        });
    show(environment_.monitor->dashboardState());
}

void DashboardView::show(const DashboardState& state) {
    cards_->show(state);
    explorer_->show(ProcessExplorer::of(state));
    lastUpdate_->show(lastUpdateText_.of(state.snapshot.timestamp, locale()));
    if (!hasShownLiveData_ && isSeen() && state.revisions.cpu > 0) {
        hasShownLiveData_ = true;
        reportFirstLiveFrame();
    }
}

bool DashboardView::isSeen() const {
    return isVisible() && !window()->isMinimized();
}

/// A hidden window computes nothing; it shows the present state when it is visible again.
void DashboardView::showIfSeen(const DashboardState& state) {
    isBehind_ = !isSeen();
    if (!isBehind_) show(state);
}

void DashboardView::catchUp() {
    if (!isBehind_ || !isSeen()) return;
    isBehind_ = false;
    show(environment_.monitor->dashboardState());
}

void DashboardView::reportFirstLiveFrame() {
    if (!environment_.onFirstLiveFrame) return;
    // Painting is posted behind this: a timer without delay runs after what is waiting now.
    QTimer::singleShot(0, this, [this] {
        repaint();
        environment_.onFirstLiveFrame();
    });
}

/// A short window shows fewer processes and the figures of the next row of cards whole; with three
/// columns and more, it shows all of that row.
void DashboardView::fitFirstScreen() {
    const auto* const bar = qobject_cast<QMenuBar*>(layout()->menuBar());
    const int room = height() - (bar && !bar->isNativeMenuBar() ? bar->sizeHint().height() : 0);
    const bool isWide = environment_.dashboardColumns.count(width() - 2 * outerPadding) >= 3;
    const double others = Typography::scaled(isWide ? heightBesidesWideRows : heightBesidesRows);
    ProcessMiniListView& busiest = card<CPUCardView>().processes();
    const double fitting = std::floor((room - others) / busiest.pitch());
    const auto rows = static_cast<std::size_t>(
        std::clamp(fitting, double{fewestProcesses}, double{mostProcesses}));
    busiest.setRowLimit(rows);
    card<MemoryCardView>().processes().setRowLimit(rows);
}

void DashboardView::resizeEvent(QResizeEvent* event) {
    fitFirstScreen();
    BackgroundView::resizeEvent(event);
}

void DashboardView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    window()->installEventFilter(this);  // only the window gets the change of its state
    catchUp();
    environment_.monitor->start();
}

bool DashboardView::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) catchUp();
    return QWidget::eventFilter(object, event);
}

}  // namespace vantor

#include "ui/dashboard/dashboard_view.h"

#include <QDateTime>
#include <QPainter>
#include <QRegularExpression>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/cards/cpu_card.h"
#include "ui/components/make_child.h"
#include "ui/components/text_line.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/dashboard/horizontal_fit.h"
#include "ui/dashboard/scroll_view.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr int outerPadding = 20;
constexpr int partSpacing = 18;
constexpr int footerGap = 16;
constexpr int footerSpacing = 4;
constexpr double headerBreakpoint = 900;
constexpr double footerBreakpoint = 720;

/// Morning and afternoon for the parts of the day in words that some locales ask for: the toolkit
/// knows no such letter and would spell a "B".
QString withPlainDayParts(const QString& format) {
    QString plain;
    bool isQuoted = false;
    for (const QChar c : format) {
        if (c == u'\'') isQuoted = !isQuoted;
        plain += c == u'B' && !isQuoted ? QStringLiteral("AP") : QString(c);
    }
    return plain;
}

}  // namespace

QString lastUpdateText(Timestamp timestamp, const QLocale& locale) {
    if (timestamp == SystemSnapshot::empty().timestamp) {
        return QStringLiteral("Collecting live data…");
    }
    // The locale's long form is the one with seconds. Its time zone is of no interest here, nor
    // what sets it apart ("HH:mm:ss (t)", "HH:mm:ss, t"); quoted words stay.
    static const QRegularExpression zone(QStringLiteral("('[^']*')|,?\\s*[(\\[]?t[)\\]]?"));
    QString format = locale.timeFormat(QLocale::LongFormat);
    format.replace(zone, QStringLiteral("\\1"));
    format = withPlainDayParts(format);
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(timestamp.time_since_epoch());
    const QTime time = QDateTime::fromMSecsSinceEpoch(milliseconds.count()).time();
    return QStringLiteral("Updated ") + locale.toString(time, format.simplified());
}

DashboardView::DashboardView(Environment environment, QWidget* parent)
    : QWidget(parent), environment_(std::move(environment)) {
    build();
    observe();
}

DashboardView::~DashboardView() = default;

void DashboardView::build() {
    const ProcessInfo& versions = environment_.machine->processInfo();
    const bool measuresFit = versions.isOperatingSystemAtLeast(13, 0, 0);
    const auto breakpoint = [&](double legacy) {
        return measuresFit ? std::nullopt : std::optional<double>(legacy);
    };
    auto* content = makeChild<QWidget>(this);
    auto* column = makeLayout<QVBoxLayout>(content);
    column->setContentsMargins(outerPadding, outerPadding, outerPadding, outerPadding);
    column->setSpacing(partSpacing);

    const auto& [settings, monitor, machine, metadata, columns, onQuit, onFirst] = environment_;
    DashboardHeader header;
    header.refreshInterval = settings->refreshInterval();
    header.isPaused = monitor->isPaused();
    header.onRefreshIntervalChange = [s = settings](double v) { s->setRefreshInterval(v); };
    header.onTogglePause = [m = monitor] { m->togglePause(); };
    header.onRefresh = [m = monitor] { m->forceRefresh(); };
    header.onQuit = onQuit;
    header_ = makeChild<DashboardHeaderView>(content, std::move(header), machine->words().subtitle,
                                             breakpoint(headerBreakpoint));
    column->addWidget(header_);

    auto* grid = makeInnerLayout<AdaptiveGridLayout>(columns);
    cpuCard_ = makeChild<CPUCardView>(content, versions);
    grid->addWidget(cpuCard_);
    column->addLayout(grid);
    column->addStretch();

    auto* product =
        makeChild<TextLineView>(content, QStringLiteral("Vantor ") + metadata.version(),
                                Typography::caption, QFont::Normal, TextLineView::Tone::secondary);
    const QString waiting = lastUpdateText(SystemSnapshot::empty().timestamp, locale());
    lastUpdate_ = makeChild<TextLineView>(content, waiting, Typography::caption, QFont::Normal,
                                          TextLineView::Tone::secondary);
    footer_ = makeChild<VantorHorizontalFit>(content, product, lastUpdate_, footerGap,
                                             footerSpacing, breakpoint(footerBreakpoint));
    column->addWidget(footer_);

    auto* whole = makeLayout<QVBoxLayout>(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(makeScrollView(content));
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
        [this](const DashboardState& state) { show(state); });
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
    cpuCard_->show(CPUCard::of(state));
    lastUpdate_->show(lastUpdateText(state.snapshot.timestamp, locale()));
    const bool isOnScreen = isVisible() && !window()->isMinimized();
    if (!hasShownLiveData_ && isOnScreen && state.revisions.cpu > 0) {
        hasShownLiveData_ = true;
        reportFirstLiveFrame();
    }
}

void DashboardView::reportFirstLiveFrame() {
    if (!environment_.onFirstLiveFrame) return;
    // Painting is posted behind this: a timer without delay runs after what is waiting now.
    QTimer::singleShot(0, this, [this] {
        repaint();
        environment_.onFirstLiveFrame();
    });
}

void DashboardView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    environment_.monitor->start();
}

void DashboardView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), VantorTheme::background(colorScheme(*this), rect()));
}

}  // namespace vantor

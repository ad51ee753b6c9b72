#include "ui/components/chart_view.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStringList>
#include <QToolTip>

#include <algorithm>
#include <cmath>

#include "ui/components/tool_tip_text.h"
#include "ui/formatters.h"
#include "ui/pixels.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr TextStyle chartLabelStyle{Typography::caption2};
constexpr double chartLabelPadding = 4;
constexpr double chartLabelGap = 6;
constexpr double chartLabelCorner = 4;
constexpr double chartFocusCorner = 4;
constexpr double chartLabelBorderOpacity = 0.2;

QString durationText(double seconds) {
    const auto whole = static_cast<qint64>(std::floor(seconds));
    const auto count = [](qint64 number) { return Formatters::count(number); };
    //: seconds, as short as possible
    if (whole < 60) return translate("ChartView", "%1 s").arg(count(whole));
    if (whole < 3600) {
        //: minutes, as short as possible
        if (whole % 60 == 0) return translate("ChartView", "%1 min").arg(count(whole / 60));
        //: minutes and seconds, as short as possible
        return translate("ChartView", "%1 min %2 s").arg(count(whole / 60), count(whole % 60));
    }
    //: hours and minutes, as short as possible
    return translate("ChartView", "%1 h %2 min").arg(count(whole / 3600), count(whole % 3600 / 60));
}

}  // namespace

QString ChartReading::text() const {
    QStringList texts{value};
    if (!age.isEmpty()) texts << age;
    texts << range;
    return listed(texts);
}

ChartView::ChartView(Format format, QWidget* parent)
    : PaintedView(parent), format_(std::move(format)) {
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
}

QString ChartView::ageText(double seconds) {
    //: a sample of a chart, that was taken just now
    if (!(seconds >= 1)) return translate("ChartView", "now");
    // Beyond that, somebody set a clock.
    constexpr double longest = 1e9;
    //: %1 is a time: when a sample of a chart was taken
    return translate("ChartView", "%1 ago").arg(durationText(std::min(seconds, longest)));
}

QRectF ChartView::labelArea(const QRectF& area, double x, const QSizeF& size) {
    const double width = std::min(size.width(), area.width());
    const double behind = x + chartLabelGap;
    const double before = x - chartLabelGap - width;
    double left = behind + width <= area.right() ? behind : before;
    left = std::clamp(left, area.left(), area.right() - width);
    return {left, area.top(), width, std::min(size.height(), area.height())};
}

std::optional<std::size_t> ChartView::current() const {
    const std::size_t count = samples().size();
    if (count == 0) return std::nullopt;
    const std::size_t last = count - 1;
    if (pointer_) {
        const QRectF area = chartArea();
        if (!(area.width() > 0)) return std::nullopt;
        const double share = std::clamp((*pointer_ - area.left()) / area.width(), 0.0, 1.0);
        return static_cast<std::size_t>(std::llround(share * static_cast<double>(last)));
    }
    if (stepsBack_) return last - std::min(*stepsBack_, last);
    return std::nullopt;
}

std::optional<double> ChartView::ageOf(std::size_t sample) const {
    if (sample >= times_.size()) return std::nullopt;
    const double now = uptime_ ? uptime_() : times_.back();
    return std::max(0.0, now - times_[sample]);
}

QString ChartView::rangeText() const {
    const auto [lowest, highest] = std::ranges::minmax(samples());
    //: from the smallest to the largest value
    return translate("ChartView", "%1 – %2").arg(format_(lowest), format_(highest));
}

std::optional<ChartReading> ChartView::reading() const {
    const auto sample = current();
    if (!sample) return std::nullopt;
    const auto age = ageOf(*sample);
    return ChartReading{*sample, format_(samples()[*sample]), age ? ageText(*age) : QString(),
                        rangeText()};
}

QString ChartView::accessibleValueText() const {
    const auto read = stepsBack_ ? reading() : std::nullopt;
    return read ? read->text() : newestText();
}

QString ChartView::accessibleHelp() const {
    const QString help = heightHelp();
    if (times_.size() < 2) return help;
    //: of a chart; %1 is a time
    return help + u' ' +
           translate("ChartView", "The width is the last %1.")
               .arg(durationText(std::round(times_.back() - times_.front())));
}

QString ChartView::heightHelp() const {
    if (const auto range = fixedRange()) {
        //: of a chart; both are values: 0 % and 100 %
        return translate("ChartView", "The height is %1 to %2.")
            .arg(Formatters::percent(range->first, 0), Formatters::percent(range->second, 0));
    }
    if (samples().empty()) {
        //: of a chart
        return translate("ChartView", "The height is the smallest to the largest value shown.");
    }
    //: of a chart; %1 are these two values
    return translate("ChartView", "The height is the smallest to the largest value shown: %1.")
        .arg(rangeText());
}

/// A sample that was chosen stays chosen as it moves away from the newest one.
void ChartView::adoptTimes(std::span<const double> times) {
    if (stepsBack_.value_or(0) > 0 && *stepsBack_ < times_.size() && !times.empty()) {
        const double chosen = times_[times_.size() - 1 - *stepsBack_];
        const auto later = times.end() - std::ranges::upper_bound(times, chosen);
        stepsBack_ = std::min(static_cast<std::size_t>(later), times.size() - 1);
    }
    times_.assign(times.begin(), times.end());
}

double ChartView::placeOf(std::size_t sample) const {
    const QRectF area = chartArea();
    const std::size_t count = samples().size();
    if (count < 2) return area.left();
    return area.left() +
           area.width() * static_cast<double>(sample) / static_cast<double>(count - 1);
}

void ChartView::paintReading(ViewPainter& painter) {
    if (hasFocus() && ring_.isShown()) {
        FocusRing::paint(painter, Pixels::snapped(painter, rect()), chartFocusCorner, palette());
    }
    const auto read = reading();
    if (!read) return;
    const QRectF area = chartArea();
    const double line = Pixels::snappedLineWidth(painter, 1);
    const double x = placeOf(read->sample);
    // The line of the first and of the last sample is inside, too.
    const double left = std::clamp(x - line / 2, area.left(), area.right() - line);
    painter.fillRect(Pixels::snapped(painter, QRectF(left, area.top(), line, area.height())),
                     VantorTheme::secondaryLabel(painter.scheme()));
    paintLabel(painter, *read, x);
}

void ChartView::paintLabel(ViewPainter& painter, const ChartReading& reading, double x) {
    QString first = reading.value;
    if (!reading.age.isEmpty()) first += QStringLiteral("  ") + reading.age;
    const double height = painter.lineHeight(chartLabelStyle);
    const double text = std::max(painter.lineWidth(chartLabelStyle, first),
                                 painter.lineWidth(chartLabelStyle, reading.range));
    const QRectF label = Pixels::snapped(
        painter,
        labelArea(chartArea(), x,
                  {std::ceil(text) + 2 * chartLabelPadding, 2 * height + chartLabelPadding}));
    QColor ground = VantorTheme::card(painter.scheme());
    ground.setAlpha(255);
    painter.setPen(QPen(VantorTheme::line(painter.scheme(), chartLabelBorderOpacity),
                        Pixels::snappedLineWidth(painter, 1)));
    painter.setBrush(ground);
    painter.drawRoundedRect(label.adjusted(0.5, 0.5, -0.5, -0.5), chartLabelCorner,
                            chartLabelCorner);
    const double top = label.top() + chartLabelPadding / 2;
    const QRectF inner(label.left() + chartLabelPadding, top, label.width() - 2 * chartLabelPadding,
                       height);
    painter.primary();
    painter.line(chartLabelStyle, painter.leading(inner), Qt::AlignLeft | Qt::AlignTop, first);
    painter.secondary();
    painter.line(chartLabelStyle, painter.leading(inner.translated(0, height)),
                 Qt::AlignLeft | Qt::AlignTop, reading.range);
}

bool ChartView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return PaintedView::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    // Below the chart: above it stands what is read there.
    QToolTip::showText(mapToGlobal(QPoint(help->x(), height())), toolTipText(accessibleHelp()),
                       this, rect());
    return true;
}

void ChartView::point(std::optional<double> x) {
    const auto before = current();
    pointer_ = x;
    if (current() != before) update();
}

void ChartView::choose(std::optional<std::size_t> stepsBack) {
    if (stepsBack == stepsBack_) return;
    stepsBack_ = stepsBack;
    update();
    announceValue();
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
    point(event->position().x());
    PaintedView::mouseMoveEvent(event);
}

void ChartView::leaveEvent(QEvent* event) {
    point(std::nullopt);
    PaintedView::leaveEvent(event);
}

void ChartView::hideEvent(QHideEvent* event) {
    point(std::nullopt);
    PaintedView::hideEvent(event);
}

void ChartView::keyPressEvent(QKeyEvent* event) {
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (isPlain && moveBy(static_cast<Qt::Key>(event->key()))) return;
    PaintedView::keyPressEvent(event);
}

/// Time runs to the right in any language.
bool ChartView::moveBy(Qt::Key key) {
    if (samples().empty()) return false;
    const std::size_t oldest = samples().size() - 1;
    switch (key) {
        case Qt::Key_Left:
            choose(stepsBack_ ? std::min(*stepsBack_ + 1, oldest) : 0);
            break;
        case Qt::Key_Right:
            choose(stepsBack_.value_or(0) > 0 ? *stepsBack_ - 1 : 0);
            break;
        case Qt::Key_Home:
            choose(oldest);
            break;
        case Qt::Key_End:
            choose(0);
            break;
        case Qt::Key_Escape:
            if (!stepsBack_) return false;
            choose(std::nullopt);
            return true;
        default:
            return false;
    }
    ring_.keyPressed();
    return true;
}

void ChartView::focusInEvent(QFocusEvent* event) {
    ring_.focusIn(*event);
    if (ring_.isShown()) choose(0);
    PaintedView::focusInEvent(event);
    update();
}

void ChartView::focusOutEvent(QFocusEvent* event) {
    choose(std::nullopt);
    PaintedView::focusOutEvent(event);
    update();
}

}  // namespace vantor

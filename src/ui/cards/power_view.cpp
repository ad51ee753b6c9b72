#include "ui/cards/power_view.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

#include "ui/components/card_chrome.h"
#include "ui/components/tool_tip_text.h"
#include "ui/core_words.h"
#include "ui/drawing/view_painter.h"
#include "ui/formatters.h"
#include "ui/shown_text.h"
#include "ui/symbols.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double powerPadding = 10;
constexpr double powerSymbolSide = 20;
constexpr double powerSymbolGap = 9;
constexpr double lowCharge = 0.2;
constexpr double middling = 0.4;

constexpr TextStyle powerTextStyle{Typography::caption, QFont::Medium};
constexpr TextStyle chargeStyle{Typography::body, QFont::Bold};

QString batterySymbol(bool isConnectedToAC, const ProcessInfo& versions) {
    // The finer names are known from this version on.
    if (versions.isOperatingSystemAtLeast(14, 0, 0)) {
        return isConnectedToAC ? QStringLiteral("battery.100percent.bolt")
                               : QStringLiteral("battery.100percent");
    }
    return isConnectedToAC ? QStringLiteral("battery.100.bolt") : QStringLiteral("battery.100");
}

QString timeText(std::int64_t minutes) {
    return Formatters::uptime(static_cast<double>(minutes) * 60);
}

}  // namespace

QColor PowerBlock::chargeColor(const std::optional<PowerStats>& power) {
    if (!power) return VantorTheme::green();
    if (power->chargeFraction < lowCharge) return VantorTheme::red();
    if (power->chargeFraction < middling) return VantorTheme::orange();
    return VantorTheme::green();
}

PowerBlock PowerBlock::of(const PowerStats& power, const ProcessInfo& versions) {
    PowerBlock block;
    block.symbol = batterySymbol(power.isConnectedToAC, versions);
    block.text = power.isConnectedToAC
                     ? /*: the computer is plugged in */ translate("PowerView", "AC connected")
                     : translate("PowerView", "On battery");
    const double charge = std::clamp(power.chargeFraction, 0.0, 1.0);
    block.charge = Formatters::percentOf(Formatters::count(std::llround(charge * 100)));
    block.color = chargeColor(power);
    QStringList lines{wordedForPeople(power.name)};
    if (power.timeRemainingMinutes) {
        const QString time = timeText(*power.timeRemainingMinutes);
        //: %1 is a time, such as 1h 20m
        lines << (power.isCharging ? translate("PowerView", "%1 until full").arg(time)
                                   //: %1 is a time, such as 1h 20m
                                   : translate("PowerView", "%1 remaining").arg(time));
    }
    if (power.cycleCount)
        lines << translate("PowerView", "%Ln charge cycle(s)", "of the battery",
                           countForPlural(*power.cycleCount));
    block.help = lines.join(u'\n');
    return block;
}

PowerView::PowerView(QWidget* parent) : PaintedView(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PowerView::show(const PowerBlock& block) {
    if (block == block_) return;
    block_ = block;
    setToolTip(toolTipText(block_.help));
    update();
    announceValue();
}

QSize PowerView::sizeHint() const {
    const double text = std::max(QFontMetricsF(Typography::font(powerTextStyle), this).height(),
                                 QFontMetricsF(Typography::font(chargeStyle), this).height());
    return {Typography::scaled(200),
            static_cast<int>(std::ceil(std::max(text, powerSymbolSide * Typography::lengthScale()) +
                                       2 * powerPadding))};
}

QSize PowerView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void PowerView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    CardChrome::paintTile(painter, rect(), painter.scheme());
    const double symbol = powerSymbolSide * Typography::lengthScale();
    Symbols::draw(painter, painter.leading({powerPadding, (height() - symbol) / 2, symbol, symbol}),
                  block_.symbol, block_.color);
    const QRectF line(powerPadding, 0, width() - 2 * powerPadding, height());
    painter.primary();
    painter.figures(chargeStyle, line, Qt::AlignRight | Qt::AlignVCenter, block_.charge);
    const double used = painter.figuresWidth(chargeStyle, block_.charge);
    painter.line(powerTextStyle,
                 line.adjusted(symbol + powerSymbolGap, 0, -used - powerSymbolGap, 0),
                 Qt::AlignLeft | Qt::AlignVCenter, block_.text);
}

}  // namespace vantor

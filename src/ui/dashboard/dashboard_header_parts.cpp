
#include <cmath>

#include "settings/app_settings.h"
#include "ui/components/symbol_tile.h"
#include "ui/core_words.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/drawing/view_painter.h"
#include "ui/pixels.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double pillHorizontalPadding = 12;
constexpr double pillVerticalPadding = 8;
constexpr double pillDot = 8;
constexpr double pillSpacing = 7;

// The symbol's measure is that of one of font size 22.
constexpr SymbolTile::Shape headerPartsTileShape{.side = 46, .corner = 14, .symbol = 27};
constexpr double identitySpacing = 13;
constexpr double nameSize = 23;
constexpr double subtitleSize = 12;

constexpr TextStyle pillStyle{Typography::caption, QFont::DemiBold};
constexpr TextStyle headerPartsNameStyle{nameSize, QFont::Bold};
constexpr TextStyle headerPartsSubtitleStyle{subtitleSize};

QStringList intervalTexts() {
    QStringList texts;
    for (const double interval : AppSettings::refreshIntervals)
        texts << DashboardHeader::intervalText(interval);
    return texts;
}

QString statusText(bool isPaused) {
    DashboardHeader header;
    header.isPaused = isPaused;
    return header.statusText();
}

}  // namespace

StatusPillView::StatusPillView(QWidget* parent) : PaintedView(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StatusPillView::show(bool isPaused) {
    if (isPaused == isPaused_) return;
    isPaused_ = isPaused;
    update();
    announceValue();
}

QString StatusPillView::accessibleValueText() const {
    return statusText(isPaused_);
}

QSize StatusPillView::sizeHint() const {
    const QFontMetricsF metrics(Typography::font(pillStyle), this);
    // Wide enough for either word: the controls beside the pill must not move on a pause.
    const double text = std::max(wholeLineWidth(*this, pillStyle, statusText(true)),
                                 wholeLineWidth(*this, pillStyle, statusText(false)));
    return {static_cast<int>(std::ceil(2 * pillHorizontalPadding + pillDot + pillSpacing + text)),
            static_cast<int>(std::ceil(metrics.height() + 2 * pillVerticalPadding))};
}

void StatusPillView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const QColor label = VantorTheme::primaryLabel(painter.scheme());
    const QRectF area = Pixels::snapped(painter, rect());
    QPainterPath capsule;
    capsule.addRoundedRect(area, area.height() / 2, area.height() / 2);
    vantorBackground(painter, VantorTheme::faded(label, 0.07), capsule);
    const QString text = accessibleValueText();
    const double textWidth = painter.lineWidth(pillStyle, text);
    const double left = (width() - pillDot - pillSpacing - textWidth) / 2;
    QPainterPath dot;
    dot.addEllipse(painter.leading({left, (height() - pillDot) / 2, pillDot, pillDot}));
    vantorBackground(painter, isPaused_ ? VantorTheme::orange() : VantorTheme::green(), dot);
    vantorForeground(painter, label);
    painter.line(pillStyle,
                 {left + pillDot + pillSpacing, 0, textWidth + 1, static_cast<double>(height())},
                 Qt::AlignLeft | Qt::AlignVCenter, text);
}

IdentityView::IdentityView(std::string_view subtitle, QWidget* parent)
    : PaintedView(parent), subtitle_(wordedForPeople(subtitle)) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize IdentityView::sizeHint() const {
    const QFontMetricsF name(Typography::font(headerPartsNameStyle), this);
    const QFontMetricsF subtitle(Typography::font(headerPartsSubtitleStyle), this);
    const double side = Typography::scaled(headerPartsTileShape.side);
    const double text = std::max(wholeLineWidth(*this, headerPartsNameStyle, accessibleLabel()),
                                 wholeLineWidth(*this, headerPartsSubtitleStyle, subtitle_));
    return {static_cast<int>(std::ceil(side + identitySpacing + text)),
            static_cast<int>(std::ceil(std::max(side, name.height() + subtitle.height())))};
}

QSize IdentityView::minimumSizeHint() const {
    return {Typography::scaled(headerPartsTileShape.side), sizeHint().height()};
}

void IdentityView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const double side = Typography::scaled(headerPartsTileShape.side);
    SymbolTile::paintProduct(painter, painter.leading({0, (height() - side) / 2, side, side}),
                             headerPartsTileShape);

    const double left = side + identitySpacing;
    const double nameHeight = painter.lineHeight(headerPartsNameStyle);
    const double subtitleHeight = painter.lineHeight(headerPartsSubtitleStyle);
    const double top = (height() - nameHeight - subtitleHeight) / 2;
    const double across = width() - left;
    painter.primary();
    painter.line(headerPartsNameStyle, {left, top, across, nameHeight}, Qt::AlignLeft,
                 accessibleLabel());
    painter.secondary();
    painter.line(headerPartsSubtitleStyle, {left, top + nameHeight, across, subtitleHeight},
                 Qt::AlignLeft, subtitle_);
}

IntervalMenuView::IntervalMenuView(const std::function<void(double)>& onChange, QWidget* parent)
    : MenuPickerView(

          //: how often the figures are read
          translate("DashboardHeader", "Refresh interval"), intervalTexts(),
          [onChange](std::size_t choice) {
              if (onChange) onChange(AppSettings::refreshIntervals.at(choice));
          },
          parent) {
    setToolTip(
        //: how often the figures are read
        translate("DashboardHeader", "Refresh interval"));
}

void IntervalMenuView::show(double interval) {
    MenuPickerView::show(DashboardHeader::intervalText(interval),
                         placeAmong(AppSettings::refreshIntervals, interval));
}

}  // namespace vantor

#include "ui/menu_bar/menu_bar_header.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

#include "ui/components/symbol_tile.h"
#include "ui/pixels.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr SymbolTile::Shape tileShape{.side = 22, .corner = 7, .symbol = 14};
constexpr double titleSpacing = 8;
constexpr double dotSide = 8;

QFont titleFont() {
    return Typography::font(Typography::headline, QFont::Bold);
}

}  // namespace

MenuBarTitleView::MenuBarTitleView(QWidget* parent) : PaintedView(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize MenuBarTitleView::sizeHint() const {
    const QFontMetricsF metrics(titleFont(), this);
    const double side = Typography::scaled(tileShape.side);
    return {static_cast<int>(
                std::ceil(side + titleSpacing + metrics.horizontalAdvance(accessibleLabel()) + 1)),
            static_cast<int>(std::ceil(std::max(side, metrics.height())))};
}

void MenuBarTitleView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int side = Typography::scaled(tileShape.side);
    const int text = side + static_cast<int>(titleSpacing);
    const auto placed = [&](const QRect& area) {
        return QRectF(QStyle::visualRect(layoutDirection(), rect(), area));
    };
    SymbolTile::paintProduct(painter, placed({0, (height() - side) / 2, side, side}), tileShape);
    painter.setFont(titleFont());
    vantorPrimaryForeground(painter, colorScheme(*this));
    const auto leading = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    Typography::drawLine(painter, placed({text, 0, width() - text, height()}),
                         leading | Qt::AlignVCenter, accessibleLabel());
}

StatusDotView::StatusDotView(QWidget* parent) : PaintedView(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StatusDotView::show(const QColor& color, const QString& text) {
    if (color == color_ && text == text_) return;
    color_ = color;
    text_ = text;
    setToolTip(text);
    update();
    announceValue();
}

QSize StatusDotView::sizeHint() const {
    return {static_cast<int>(dotSide), static_cast<int>(dotSide)};
}

void StatusDotView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (color_.alpha() > 0) {
        QPainterPath dot;
        dot.addEllipse(QRectF(rect()));
        vantorBackground(painter, color_, dot);
        return;
    }
    const double line = Pixels::snappedLineWidth(painter, 1.5);
    painter.setPen(QPen(VantorTheme::secondaryLabel(colorScheme(*this)), line));
    painter.drawEllipse(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

}  // namespace vantor

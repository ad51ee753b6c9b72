#include "ui/menu_bar/menu_bar_header.h"

#include <algorithm>
#include <cmath>

#include "ui/components/symbol_tile.h"
#include "ui/drawing/view_painter.h"
#include "ui/pixels.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr SymbolTile::Shape menuBarHeaderTileShape{.side = 22, .corner = 7, .symbol = 14};
constexpr double menuBarHeaderTitleSpacing = 8;
constexpr double dotSide = 8;

constexpr TextStyle menuBarHeaderTitleStyle{Typography::headline, QFont::Bold};

}  // namespace

MenuBarTitleView::MenuBarTitleView(QWidget* parent) : PaintedView(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize MenuBarTitleView::sizeHint() const {
    const QFontMetricsF metrics(Typography::font(menuBarHeaderTitleStyle), this);
    const double side = Typography::scaled(menuBarHeaderTileShape.side);
    return {static_cast<int>(
                std::ceil(side + menuBarHeaderTitleSpacing +
                          wholeLineWidth(*this, menuBarHeaderTitleStyle, accessibleLabel()))),
            static_cast<int>(std::ceil(std::max(side, metrics.height())))};
}

void MenuBarTitleView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const double side = Typography::scaled(menuBarHeaderTileShape.side);
    const double text = side + menuBarHeaderTitleSpacing;
    SymbolTile::paintProduct(painter, painter.leading({0, (height() - side) / 2, side, side}),
                             menuBarHeaderTileShape);
    painter.primary();
    painter.line(menuBarHeaderTitleStyle, {text, 0, width() - text, static_cast<double>(height())},
                 Qt::AlignLeft | Qt::AlignVCenter, accessibleLabel());
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
    ViewPainter painter(*this);
    if (color_.alpha() > 0) {
        QPainterPath dot;
        dot.addEllipse(QRectF(rect()));
        vantorBackground(painter, color_, dot);
        return;
    }
    const double line = Pixels::snappedLineWidth(painter, 1.5);
    painter.setPen(QPen(VantorTheme::secondaryLabel(painter.scheme()), line));
    painter.drawEllipse(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

}  // namespace vantor

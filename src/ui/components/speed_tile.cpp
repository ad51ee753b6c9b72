#include "ui/components/speed_tile.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

#include "ui/components/card_chrome.h"
#include "ui/components/symbol_tile.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double tilePadding = 10;
constexpr double spacing = 9;
constexpr double textSpacing = 1;
constexpr SymbolTile::Shape iconShape{.side = 26, .corner = 8, .symbol = 15};

QFont titleFont() {
    return Typography::font(Typography::caption2);
}
QFont valueFont() {
    return Typography::font(Typography::caption, QFont::DemiBold);
}

}  // namespace

SpeedTileView::SpeedTileView(SpeedTile tile, Ground ground, QWidget* parent)
    : PaintedView(parent), tile_(std::move(tile)), ground_(ground) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

double SpeedTileView::padding() const {
    return ground_ == Ground::tile ? tilePadding : 0;
}

void SpeedTileView::show(const SpeedTile& tile) {
    if (tile == tile_) return;
    tile_ = tile;
    update();
    announceValue();
}

QSize SpeedTileView::sizeHint() const {
    const QFontMetricsF title(titleFont(), this);
    const QFontMetricsF value(valueFont(), this);
    const double icon = Typography::scaled(iconShape.side);
    const double text = std::max(title.horizontalAdvance(tile_.title),
                                 Typography::digitTextWidth(tile_.value, value));
    return {static_cast<int>(std::ceil(2 * padding() + icon + spacing + text)),
            static_cast<int>(std::ceil(
                2 * padding() + std::max(icon, title.height() + textSpacing + value.height())))};
}

QSize SpeedTileView::minimumSizeHint() const {
    return {Typography::scaled(iconShape.side) + static_cast<int>(2 * padding()),
            sizeHint().height()};
}

void SpeedTileView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ColorScheme scheme = colorScheme(*this);
    if (ground_ == Ground::tile) CardChrome::paintTile(painter, rect(), scheme);

    const double side = Typography::scaled(iconShape.side);
    const double left = padding() + side + spacing;
    const double across = width() - left - padding();
    const double titleHeight = QFontMetricsF(titleFont(), this).height();
    const double valueHeight = QFontMetricsF(valueFont(), this).height();
    const double top = (height() - titleHeight - textSpacing - valueHeight) / 2;
    const auto placed = [&](QRectF area) {
        if (isRightToLeft()) area.moveRight(width() - area.left());
        return area;
    };
    const auto leading = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    SymbolTile::paint(painter, placed({padding(), (height() - side) / 2, side, side}), iconShape,
                      tile_.icon, tile_.color);
    painter.setFont(titleFont());
    vantorSecondaryForeground(painter, scheme);
    Typography::drawLine(painter, placed({left, top, across, titleHeight}), leading, tile_.title);
    painter.setFont(valueFont());
    vantorPrimaryForeground(painter, scheme);
    Typography::drawDigitText(painter,
                              placed({left, top + titleHeight + textSpacing, across, valueHeight}),
                              leading, tile_.value);
}

}  // namespace vantor

#include "ui/components/speed_tile.h"

#include <algorithm>
#include <cmath>

#include "ui/components/card_chrome.h"
#include "ui/components/symbol_tile.h"
#include "ui/drawing/view_painter.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double tilePadding = 10;
constexpr double spacing = 9;
constexpr double textSpacing = 1;
constexpr SymbolTile::Shape iconShape{.side = 26, .corner = 8, .symbol = 15};

constexpr TextStyle titleStyle{Typography::caption2};
constexpr TextStyle valueStyle{Typography::caption, QFont::DemiBold};

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
    const QFontMetricsF title(Typography::font(titleStyle), this);
    const QFontMetricsF value(Typography::font(valueStyle), this);
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
    ViewPainter painter(*this);
    if (ground_ == Ground::tile) CardChrome::paintTile(painter, rect(), painter.scheme());

    const double side = Typography::scaled(iconShape.side);
    SymbolTile::paint(painter, painter.leading({padding(), (height() - side) / 2, side, side}),
                      iconShape, tile_.icon, tile_.color);
    const double left = padding() + side + spacing;
    const double across = width() - left - padding();
    const double titleHeight = painter.lineHeight(titleStyle);
    const double valueHeight = painter.lineHeight(valueStyle);
    const double top = (height() - titleHeight - textSpacing - valueHeight) / 2;
    painter.secondary();
    painter.line(titleStyle, {left, top, across, titleHeight}, Qt::AlignLeft, tile_.title);
    painter.primary();
    painter.figures(valueStyle, {left, top + titleHeight + textSpacing, across, valueHeight},
                    Qt::AlignLeft, tile_.value);
}

}  // namespace vantor

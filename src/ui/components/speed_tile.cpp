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
constexpr double speedTileSpacing = 9;
constexpr double speedTileTextSpacing = 1;
constexpr SymbolTile::Shape speedTileIconShape{.side = 26, .corner = 8, .symbol = 15};

constexpr TextStyle speedTileTitleStyle{Typography::caption2};
constexpr TextStyle speedTileValueStyle{Typography::caption, QFont::DemiBold};

}  // namespace

SpeedTileView::SpeedTileView(SpeedTile tile, Background background, QWidget* parent)
    : PaintedView(parent), tile_(std::move(tile)), background_(background) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

double SpeedTileView::padding() const {
    return background_ == Background::tile ? tilePadding : 0;
}

void SpeedTileView::show(const SpeedTile& tile) {
    if (tile == tile_) return;
    tile_ = tile;
    update();
    announceValue();
}

QSize SpeedTileView::sizeHint() const {
    const QFontMetricsF title(Typography::font(speedTileTitleStyle), this);
    const QFontMetricsF value(Typography::font(speedTileValueStyle), this);
    const double icon = Typography::scaled(speedTileIconShape.side);
    const double text = std::max(wholeLineWidth(*this, speedTileTitleStyle, tile_.title),
                                 Typography::digitTextWidth(tile_.value, value));
    return {static_cast<int>(std::ceil(2 * padding() + icon + speedTileSpacing + text)),
            static_cast<int>(
                std::ceil(2 * padding() +
                          std::max(icon, title.height() + speedTileTextSpacing + value.height())))};
}

QSize SpeedTileView::minimumSizeHint() const {
    return {Typography::scaled(speedTileIconShape.side) + static_cast<int>(2 * padding()),
            sizeHint().height()};
}

void SpeedTileView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    if (background_ == Background::tile) CardChrome::paintTile(painter, rect(), painter.scheme());

    const double side = Typography::scaled(speedTileIconShape.side);
    SymbolTile::paint(painter, painter.leading({padding(), (height() - side) / 2, side, side}),
                      speedTileIconShape, tile_.icon, tile_.color);
    const double left = padding() + side + speedTileSpacing;
    const double across = width() - left - padding();
    const double titleHeight = painter.lineHeight(speedTileTitleStyle);
    const double valueHeight = painter.lineHeight(speedTileValueStyle);
    const double top = (height() - titleHeight - speedTileTextSpacing - valueHeight) / 2;
    painter.secondary();
    painter.line(speedTileTitleStyle, {left, top, across, titleHeight}, Qt::AlignLeft, tile_.title);
    if (!tile_.isAbsent) painter.primary();
    painter.figures(speedTileValueStyle,
                    {left, top + titleHeight + speedTileTextSpacing, across, valueHeight},
                    Qt::AlignLeft, tile_.value);
}

}  // namespace vantor

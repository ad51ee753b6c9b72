#include "ui/components/card_chrome.h"

#include "ui/pixels.h"

namespace vantor::CardChrome {

void paint(QPainter& painter, const QRectF& area, ColorScheme scheme, const QColor& border,
           double corner) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF outer = Pixels::snapped(painter, area);
    QPainterPath shape;
    shape.addRoundedRect(outer, corner, corner);
    vantorBackground(painter, VantorTheme::card(scheme), shape);
    const double width = Pixels::snappedLineWidth(painter, 1);
    const double inset = width / 2;
    painter.setPen(QPen(border, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(outer.adjusted(inset, inset, -inset, -inset), corner - inset,
                            corner - inset);
    painter.restore();
}

void paintTile(QPainter& painter, const QRectF& area, ColorScheme scheme, double opacity) {
    constexpr double corner = 12;
    QPainterPath tile;
    tile.addRoundedRect(Pixels::snapped(painter, area), corner, corner);
    vantorBackground(painter, VantorTheme::faded(VantorTheme::primaryLabel(scheme), opacity), tile);
}

}  // namespace vantor::CardChrome

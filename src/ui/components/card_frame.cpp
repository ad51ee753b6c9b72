#include "ui/components/card_frame.h"

#include <QEvent>
#include <QPaintEvent>

#include <array>
#include <cmath>
#include <optional>

#include "ui/components/card_chrome.h"
#include "ui/drawing/background_view.h"
#include "ui/drawing/device_pixels.h"
#include "ui/pixels.h"

namespace vantor {

namespace {

using Layer = Background::Layer;

/// Paints a card and the window's background under it. In device pixels.
class OpaqueCard {
  public:
    OpaqueCard(QPainter& painter, const Background& background, QRect card, QPoint origin,
               double scale)
        : painter_(painter),
          background_(background),
          card_(card),
          origin_(origin),
          radius_(CardChrome::cornerRadius * scale),
          line_(std::max(1, static_cast<int>(std::lround(scale)))) {}

    void paint(const QRect& dirty, ColorScheme scheme, const QColor& border) {
        const QRect part = dirty & card_;
        copy(Layer::card, part);
        // So far inside the corners there is only the card's colour.
        const int inner = static_cast<int>(std::ceil(radius_ * (1 - M_SQRT1_2))) + line_;
        if (card_.adjusted(inner, inner, -inner, -inner).contains(part)) return;
        paintLines(part, border);
        paintCorners(part, scheme, border);
    }

  private:
    void copy(Layer layer, const QRect& area) {
        background_.paint(painter_, layer, area.translated(-origin_), origin_);
    }
    QColor blended(const QColor& color, QPoint place) const {
        return VantorTheme::over(color, background_.color(Layer::card, place - origin_));
    }
    int side() const { return static_cast<int>(std::ceil(radius_)); }
    void paintLines(const QRect& part, const QColor& border);
    void paintCorners(const QRect& part, ColorScheme scheme, const QColor& border);

    QPainter& painter_;
    const Background& background_;
    QRect card_;
    QPoint origin_;
    double radius_;
    int line_;
};

/// The straight parts of the border, in lengths over which the background's colour does not change:
/// blending a long thin line costs far more than filling it.
void OpaqueCard::paintLines(const QRect& part, const QColor& border) {
    constexpr int length = 32;
    const auto fill = [&](const QRect& piece) {
        const QRect seen = piece & part;
        if (!seen.isEmpty()) painter_.fillRect(seen, blended(border, piece.center()));
    };
    const QRect across = card_.adjusted(side(), 0, -side(), 0);
    for (int x = across.left(); x <= across.right(); x += length) {
        const int width = std::min(length, across.right() - x + 1);
        fill({x, card_.top(), width, line_});
        fill({x, card_.bottom() + 1 - line_, width, line_});
    }
    const QRect down = card_.adjusted(0, side(), 0, -side());
    for (int y = down.top(); y <= down.bottom(); y += length) {
        const int height = std::min(length, down.bottom() - y + 1);
        fill({card_.left(), y, line_, height});
        fill({card_.right() + 1 - line_, y, line_, height});
    }
}

/// A quarter of a circle and, where its radius is no whole number, the rest of the square around
/// it.
struct CornerPath {
    QPointF tip;        // where the edges would meet
    QPointF inwards;    // one pixel along both edges
    double firstAngle;  // of the arc, counterclockwise
    bool startsAcross;  // whether the arc begins at the horizontal edge

    /// The arc `inset` within the edges, from one side of the square to the other.
    QPainterPath arc(double radius, double side, double inset) const {
        const QPointF along(inwards.x() * side, inwards.y() * inset);
        const QPointF down(inwards.x() * inset, inwards.y() * side);
        const QPointF center = tip + inwards * radius;
        const double r = radius - inset;
        QPainterPath path(tip + (startsAcross ? along : down));
        path.arcTo(QRectF(center.x() - r, center.y() - r, 2 * r, 2 * r), firstAngle, 90);
        path.lineTo(tip + (startsAcross ? down : along));
        return path;
    }
};

void OpaqueCard::paintCorners(const QRect& part, ColorScheme scheme, const QColor& border) {
    const QRectF card(card_);
    const int s = side();
    const std::array corners{CornerPath{card.topLeft(), {1, 1}, 90, true},
                             CornerPath{card.topRight(), {-1, 1}, 0, false},
                             CornerPath{card.bottomLeft(), {1, -1}, 180, false},
                             CornerPath{card.bottomRight(), {-1, -1}, 270, true}};
    for (const CornerPath& corner : corners) {
        const QPointF inner = corner.tip + corner.inwards * s;
        const QRect square = QRectF(corner.tip, inner).normalized().toRect();
        if (!square.intersects(part)) continue;
        copy(Layer::window, square);
        QPainterPath filled = corner.arc(radius_, s, 0);
        filled.lineTo(inner);
        filled.closeSubpath();
        vantorBackground(painter_, VantorTheme::card(scheme), filled);
        painter_.strokePath(corner.arc(radius_, s, line_ / 2.0),
                            QPen(border, line_, Qt::SolidLine, Qt::FlatCap));
    }
}

}  // namespace

bool CardFrame::event(QEvent* event) {
    if (event->type() == QEvent::Polish || event->type() == QEvent::ParentChange) {
        setAttribute(Qt::WA_OpaquePaintEvent, BackgroundView::behind(*this) != nullptr);
    }
    return QWidget::event(event);
}

void CardFrame::paintEvent(QPaintEvent* event) {
    const ColorScheme scheme = colorScheme(*this);
    BackgroundView* const below = BackgroundView::behind(*this);
    QPainter painter(this);
    if (!below) {
        CardChrome::paint(painter, rect(), scheme, borderColor());
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const DevicePixels pixels(painter);
    const QPoint origin = pixels.at(-QPointF(mapTo(below, QPoint())));
    OpaqueCard card(painter, below->background(pixels.scale()), pixels.at(QRectF(rect())), origin,
                    pixels.scale());
    for (const QRect& part : event->region())
        card.paint(pixels.at(QRectF(part)), scheme, borderColor());
}

}  // namespace vantor

#include "ui/drawing/ground_view.h"

#include <QPaintEvent>

#include "ui/drawing/device_pixels.h"

namespace vantor {

GroundView* GroundView::behind(const QWidget& view) {
    for (QWidget* parent = view.parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* ground = dynamic_cast<GroundView*>(parent)) return ground;
    }
    return nullptr;
}

const Ground& GroundView::ground(double scale) {
    ground_.fit((QSizeF(size()) * scale).toSize(), colorScheme(*this), layoutDirection());
    return ground_;
}

void GroundView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const DevicePixels pixels(painter);
    const Ground& whole = ground(pixels.scale());
    const QPoint origin = pixels.at(QPointF());
    for (const QRect& part : event->region())
        whole.paint(painter, Ground::Layer::window, pixels.at(QRectF(part)).translated(-origin),
                    origin);
}

}  // namespace vantor

#include "ui/drawing/background_view.h"

#include <QPaintEvent>

#include "ui/drawing/device_pixels.h"

namespace vantor {

BackgroundView* BackgroundView::behind(const QWidget& view) {
    for (QWidget* parent = view.parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* background = dynamic_cast<BackgroundView*>(parent)) return background;
    }
    return nullptr;
}

const Background& BackgroundView::background(double scale) {
    background_.fit((QSizeF(size()) * scale).toSize(), colorScheme(*this), layoutDirection());
    return background_;
}

void BackgroundView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const DevicePixels pixels(painter);
    const Background& whole = background(pixels.scale());
    const QPoint origin = pixels.at(QPointF());
    for (const QRect& part : event->region())
        whole.paint(painter, Background::Layer::window, pixels.at(QRectF(part)).translated(-origin),
                    origin);
}

}  // namespace vantor

#include "ui/pixels.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace vantor::Pixels {

QRectF snapped(const QPainter& painter, const QRectF& area) {
    const QTransform toDevice = painter.deviceTransform();
    bool invertible = false;
    const QTransform back = toDevice.inverted(&invertible);
    if (!invertible || toDevice.isRotating()) return area;
    const QRectF device = toDevice.mapRect(area);
    const QPointF topLeft(std::round(device.left()), std::round(device.top()));
    const QPointF bottomRight(std::round(device.right()), std::round(device.bottom()));
    return back.mapRect(QRectF(topLeft, bottomRight));
}

double snappedLineWidth(const QPainter& painter, double width) {
    const double scale = std::abs(painter.deviceTransform().m11());
    if (!(scale > 0)) return width;
    return std::max(1.0, std::round(width * scale)) / scale;
}

}  // namespace vantor::Pixels

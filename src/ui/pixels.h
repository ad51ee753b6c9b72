#pragma once

#include <QPainter>
#include <QRectF>

/// Edges that fall between device pixels are drawn blurred, which shows at fractional scale
/// factors. These put them on pixels.
namespace vantor::Pixels {

/// `area` with its edges moved to the nearest device pixels.
QRectF snapped(const QPainter& painter, const QRectF& area);

/// `width` as the nearest whole number of device pixels, at least one.
double snappedLineWidth(const QPainter& painter, double width);

}  // namespace vantor::Pixels

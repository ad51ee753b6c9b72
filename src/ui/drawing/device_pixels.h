#pragma once

#include <QPainter>
#include <QRect>
#include <QTransform>

namespace vantor {

/// During its lifetime the painter uses device pixels instead of points.
class DevicePixels {
  public:
    explicit DevicePixels(QPainter& painter)
        : painter_(painter),
          before_(painter.worldTransform()),
          toDevice_(painter.deviceTransform()) {
        painter_.setWorldTransform(toDevice_.inverted() * before_);
    }
    ~DevicePixels() { painter_.setWorldTransform(before_); }
    DevicePixels(const DevicePixels&) = delete;
    DevicePixels& operator=(const DevicePixels&) = delete;

    double scale() const { return toDevice_.m11(); }

    QPointF exact(QPointF place) const { return toDevice_.map(place); }

    /// `place` and `area` of the painter's former coordinates, with edges on the nearest pixels.
    QPoint at(QPointF place) const { return toDevice_.map(place).toPoint(); }
    QRect at(const QRectF& area) const {
        return {at(area.topLeft()), at(area.bottomRight()) - QPoint(1, 1)};
    }

  private:
    QPainter& painter_;
    QTransform before_;
    QTransform toDevice_;
};

}  // namespace vantor

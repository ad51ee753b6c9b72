#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPointF>

namespace vantor {

/// Draws a ring of which a part, from the top clockwise, is lit and has round ends. Pixel by pixel:
/// stroking arcs takes the toolkit many times as long. Keeps its storage from one drawing to the
/// next.
class RingRaster {
  public:
    struct Ring {
        QPointF center;     ///< all lengths in device pixels
        double radius = 0;  ///< of the middle of the band
        double width = 0;   ///< of the band
        double sweep = 0;   ///< what is lit, in degrees, 0 to 360
        QColor track;       ///< may be translucent
        QColor accent;      ///< opaque
    };

    void draw(QPainter& painter, const Ring& ring);

  private:
    QImage strip_;  // of what is handed to the painter next
};

}  // namespace vantor

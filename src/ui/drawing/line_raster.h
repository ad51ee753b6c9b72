#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QRect>

#include <cstdint>
#include <span>
#include <vector>

namespace vantor {

/// Draws a line over the area below it, pixel by pixel. The toolkit turns a stroke into an outline
/// and fills that, which takes ten times as long for a line of a hundred bends, and
/// may use its thread pool. Keeps its storage from one drawing to the next.
class LineRaster {
  public:
    struct Style {
        QColor color;          ///< opaque
        double width = 2;      ///< of the line
        double fillShare = 0;  ///< of the line's opacity, below it
    };

    /// Draws across `area`, all in device pixels; the points count from its corner, their x
    /// ascending. Fewer than two points draw nothing.
    void draw(QPainter& painter, const QRect& area, std::span<const QPointF> points,
              const Style& style);

  private:
    struct Surface {
        int top;
        std::uint8_t covered;
    };

    std::uint8_t* row(int y) { return coverage_.data() + static_cast<std::ptrdiff_t>(y) * width_; }
    void findSurface(std::span<const QPointF> points, double share);
    void addSegment(QPointF from, QPointF to, double reach);
    void colour(QPainter& painter, QPoint corner, int firstRow, const Style& style);

    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint8_t> coverage_;  // by the line, row by row
    std::vector<Surface> surface_;        // of what is below it, column by column
    QImage strip_;                        // of what is handed to the painter next
};

}  // namespace vantor

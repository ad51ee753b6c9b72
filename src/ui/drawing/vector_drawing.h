#pragma once

#include <QBrush>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

namespace vantor {

/// A drawing of the program's own resources: what an SVG file says with paths, rectangles, circles
/// and ellipses, strokes with round ends and fills. The toolkit's library for such files reads all
/// of the format and takes more memory than a card's figures; and to read a picture's file, the
/// toolkit loads its plugins for every format.
class VectorDrawing {
  public:
    struct Shape {
        QPainterPath path;
        bool isFilled = false;
        double strokeWidth = 0;  // none
        QList<double> dashes;    // in stroke widths
    };

    /// From the text of such a file; absent when it has anything that is not supported.
    static std::optional<VectorDrawing> parse(std::string_view text);
    /// From a resource; absent when there is none.
    static std::optional<VectorDrawing> ofResource(const QString& path);

    /// The sides of the square that it is drawn in.
    double side() const { return side_; }
    const std::vector<Shape>& shapes() const { return shapes_; }

    /// Draws it into `area`, a square, every fill with `fill` and every stroke with `stroke`.
    void paint(QPainter& painter, const QRectF& area, const QBrush& fill,
               const QBrush& stroke) const;

  private:
    double side_ = 0;
    std::vector<Shape> shapes_;
};

}  // namespace vantor

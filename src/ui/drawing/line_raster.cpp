#include "ui/drawing/line_raster.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "ui/drawing/bounded.h"

namespace vantor {

namespace {

constexpr int lineRasterStripHeight = 16;

std::uint8_t level(double share) {
    return static_cast<std::uint8_t>(bounded(share, 0.0, 1.0) * 255 + 0.5);
}

int clampedFloor(double value, int low, int high) {
    return static_cast<int>(std::floor(bounded<double>(value, low, high)));
}

}  // namespace

/// Where the area below the line begins in each column, and how much of that pixel it covers.
void LineRaster::findSurface(std::span<const QPointF> points, double share) {
    surface_.assign(static_cast<std::size_t>(width_), Surface{height_, 0});
    std::size_t segment = 1;
    for (int x = 0; x < width_; ++x) {
        const double middle = x + 0.5;
        if (middle < points.front().x() || middle > points.back().x()) continue;
        while (segment + 1 < points.size() && points[segment].x() < middle)
            ++segment;
        const QPointF from = points[segment - 1];
        const QPointF to = points[segment];
        const double across = to.x() - from.x();
        const double part = across > 0 ? (middle - from.x()) / across : 1;
        const double y = from.y() + (to.y() - from.y()) * part;
        const int top = clampedFloor(y, 0, height_ - 1);
        surface_[static_cast<std::size_t>(x)] = {top, level(share * (top + 1 - y))};
    }
}

/// Adds what lies within `reach` of the segment, with an edge one pixel soft.
void LineRaster::addSegment(QPointF from, QPointF to, double reach) {
    const double outer = reach + 0.5;
    const QPointF along = to - from;
    const double length = std::hypot(along.x(), along.y());
    if (!(length > 0)) return;
    const double unitX = along.x() / length;
    const double unitY = along.y() / length;
    const int firstX = clampedFloor(from.x() - outer, 0, width_);
    const int lastX = clampedFloor(to.x() + outer, -1, width_ - 1);
    for (int x = firstX; x <= lastX; ++x) {
        // The rows that the band of the line crosses within this column.
        const double nearX = bounded(x + 0.5 - outer, from.x(), to.x());
        const double farX = bounded(x + 0.5 + outer, from.x(), to.x());
        const double slope = along.x() > 0 ? along.y() / along.x() : 0;
        double y1 = along.x() > 0 ? from.y() + (nearX - from.x()) * slope : from.y();
        double y2 = along.x() > 0 ? from.y() + (farX - from.x()) * slope : to.y();
        if (y1 > y2) std::swap(y1, y2);
        const int firstY = clampedFloor(y1 - outer, 0, height_);
        const int lastY = clampedFloor(y2 + outer, -1, height_ - 1);
        const double dx = x + 0.5 - from.x();
        for (int y = firstY; y <= lastY; ++y) {
            const double dy = y + 0.5 - from.y();
            const double along01 = bounded(dx * unitX + dy * unitY, 0.0, length);
            const double offX = dx - along01 * unitX;
            const double offY = dy - along01 * unitY;
            const double squared = offX * offX + offY * offY;
            if (squared >= outer * outer) continue;
            std::uint8_t& pixel = row(y)[x];
            pixel = std::max(pixel, level(outer - std::sqrt(squared)));
        }
    }
}

/// Blends the line over what is below it, in shades of one colour, a strip of rows at a time: a
/// picture of the whole would take as much memory as all the figures of a card.
void LineRaster::colour(QPainter& painter, QPoint corner, int firstRow, const Style& style) {
    if (strip_.width() < width_)
        strip_ = QImage(width_, lineRasterStripHeight, QImage::Format_ARGB32_Premultiplied);
    std::array<QRgb, 256> shades{};
    const QColor& color = style.color;
    for (int alpha = 0; alpha < 256; ++alpha)
        shades[static_cast<std::size_t>(alpha)] =
            qPremultiply(qRgba(color.red(), color.green(), color.blue(), alpha));
    const std::uint8_t whole = level(style.fillShare);
    for (int y = firstRow; y < height_; ++y) {
        const int inStrip = (y - firstRow) % lineRasterStripHeight;
        auto* const line = reinterpret_cast<QRgb*>(strip_.scanLine(inStrip));
        const std::uint8_t* const covered = row(y);
        // By pointers: checked at each pixel, indices cost an eighth of this.
        const Surface* const surfaces = surface_.data();
        const QRgb* const shadeOf = shades.data();
        for (int x = 0; x < width_; ++x) {
            const Surface& surface = surfaces[x];
            const int below = y > surface.top ? whole : y == surface.top ? surface.covered : 0;
            const int over = covered[x];
            line[x] = shadeOf[over == 0 ? below : over + (255 - over) * below / 255];
        }
        if (inStrip + 1 < lineRasterStripHeight && y + 1 < height_) continue;
        painter.drawImage(corner + QPoint(0, y - inStrip), strip_,
                          QRect(0, 0, width_, inStrip + 1));
    }
}

void LineRaster::draw(QPainter& painter, const QRect& area, std::span<const QPointF> points,
                      const Style& style) {
    if (points.size() < 2 || area.isEmpty()) return;
    width_ = area.width();
    height_ = area.height();
    coverage_.assign(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), 0);
    findSurface(points, style.fillShare);
    for (std::size_t i = 1; i < points.size(); ++i)
        addSegment(points[i - 1], points[i], style.width / 2);
    // Above the highest point and half of the line's width there is nothing.
    const auto highest = std::ranges::min_element(points, {}, [](QPointF p) { return p.y(); });
    const int firstRow = clampedFloor(highest->y() - style.width / 2 - 0.5, 0, height_);
    colour(painter, area.topLeft(), firstRow, style);
}

}  // namespace vantor

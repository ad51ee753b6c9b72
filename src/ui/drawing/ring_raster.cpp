#include "ui/drawing/ring_raster.h"

#include <QRect>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "ui/drawing/bounded.h"

namespace vantor {

namespace {

// A picture of the whole would take as much memory as all the figures of a card.
constexpr int ringRasterStripHeight = 16;

/// Premultiplied, 0 to 1.
struct Shade {
    double red, green, blue, alpha;

    static Shade of(const QColor& color) {
        const double a = color.alphaF();
        return {color.redF() * a, color.greenF() * a, color.blueF() * a, a};
    }
    Shade at(double share) const {
        return {red * share, green * share, blue * share, alpha * share};
    }
    Shade over(const Shade& background) const {
        const double rest = 1 - alpha;
        return {red + background.red * rest, green + background.green * rest,
                blue + background.blue * rest, alpha + background.alpha * rest};
    }
    QRgb pixel() const {
        const auto level = [](double x) { return static_cast<int>(x * 255 + 0.5); };
        return qRgba(level(red), level(green), level(blue), level(alpha));
    }
};

/// How much of a pixel a ring covers.
class Band {
  public:
    explicit Band(const RingRaster::Ring& ring)
        : radius_(ring.radius),
          reach_(ring.width / 2 + 0.5),
          isWhole_(ring.sweep >= 360),
          isEmpty_(!(ring.sweep > 0)),
          isWide_(ring.sweep > 180),
          end_(direction(ring.sweep)) {}

    double inner() const { return std::max(0.0, radius_ - reach_); }
    double outer() const { return radius_ + reach_; }

    /// All arguments are relative to the ring's center.
    double covered(double distance) const {
        return bounded(reach_ - std::abs(distance - radius_), 0.0, 1.0);
    }
    double lit(QPointF place, double covered) const {
        if (isEmpty_) return 0;
        if (isWhole_ || isInSector(place)) return covered;
        return std::max(capped(place, {0, -radius_}), capped(place, end_ * radius_));
    }

  private:
    static QPointF direction(double degrees) {
        const double angle = degrees * std::numbers::pi / 180;
        return {std::sin(angle), -std::cos(angle)};
    }
    static double cross(QPointF a, QPointF b) { return a.x() * b.y() - a.y() * b.x(); }

    bool isInSector(QPointF place) const {
        const bool isAfterStart = place.x() >= 0;  // within half a turn after the top
        const bool isBeforeEnd = cross(place, end_) >= 0;
        return isWide_ ? isAfterStart || isBeforeEnd : isAfterStart && isBeforeEnd;
    }
    double capped(QPointF place, QPointF cap) const {
        const QPointF off = place - cap;
        const double squared = off.x() * off.x() + off.y() * off.y();
        if (squared >= reach_ * reach_) return 0;
        return std::min(reach_ - std::sqrt(squared), 1.0);
    }

    double radius_;
    double reach_;
    bool isWhole_;
    bool isEmpty_;
    bool isWide_;
    QPointF end_;
};

}  // namespace

void RingRaster::draw(QPainter& painter, const Ring& ring) {
    const Band band(ring);
    const double outer = band.outer();
    const QRect area =
        QRectF(ring.center.x() - outer, ring.center.y() - outer, 2 * outer, 2 * outer)
            .toAlignedRect();
    if (area.isEmpty()) return;
    if (strip_.width() < area.width())
        strip_ = QImage(area.width(), ringRasterStripHeight, QImage::Format_ARGB32_Premultiplied);
    const Shade track = Shade::of(ring.track);
    const Shade accent = Shade::of(ring.accent);
    const QRgb wholeTrack = track.pixel();
    const QRgb wholeAccent = accent.pixel();
    const double innerSquared = band.inner() * band.inner();
    for (int y = 0; y < area.height(); ++y) {
        const int inStrip = y % ringRasterStripHeight;
        auto* const line = reinterpret_cast<QRgb*>(strip_.scanLine(inStrip));
        const double dy = area.top() + y + 0.5 - ring.center.y();
        for (int x = 0; x < area.width(); ++x) {
            const double dx = area.left() + x + 0.5 - ring.center.x();
            const double squared = dx * dx + dy * dy;
            if (squared >= outer * outer || squared <= innerSquared) {
                line[x] = 0;
                continue;
            }
            const double distance = std::sqrt(squared);
            const double covered = band.covered(distance);
            const double lit = band.lit({dx, dy}, covered);
            if (lit == 1) {
                line[x] = wholeAccent;
            } else if (lit == 0 && covered == 1) {
                line[x] = wholeTrack;
            } else {
                line[x] = accent.at(lit).over(track.at(covered)).pixel();
            }
        }
        if (inStrip + 1 < ringRasterStripHeight && y + 1 < area.height()) continue;
        painter.drawImage(area.topLeft() + QPoint(0, y - inStrip), strip_,
                          QRect(0, 0, area.width(), inStrip + 1));
    }
}

}  // namespace vantor

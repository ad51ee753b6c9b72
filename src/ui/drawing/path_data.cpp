#include "ui/drawing/path_data.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <numbers>

#include "ui/drawing/text_scanner.h"

namespace vantor {

namespace {

struct Arc {
    double radiusX, radiusY;
    bool isLarge, isClockwise;
    QPointF end;
};

/// From both ends to the ellipse's centre: files have the former, the toolkit takes the latter.
void addArc(QPainterPath& path, const Arc& arc) {
    const QPointF start = path.currentPosition();
    if (start == arc.end) return;
    if (!(arc.radiusX > 0) || !(arc.radiusY > 0)) {
        path.lineTo(arc.end);
        return;
    }
    // In the circle of radius 1 that the ellipse is when both axes are divided by its radii.
    const double halfX = (start.x() - arc.end.x()) / 2 / arc.radiusX;
    const double halfY = (start.y() - arc.end.y()) / 2 / arc.radiusY;
    const double halfChord = std::hypot(halfX, halfY);
    // Too small a radius grows until it reaches both ends.
    const double growth = std::max(1.0, halfChord);
    const double x = halfX / growth;
    const double y = halfY / growth;
    const double square = x * x + y * y;
    double distance = std::sqrt(std::max(0.0, 1 / square - 1));
    if (arc.isLarge == arc.isClockwise) distance = -distance;
    const QPointF center(distance * y, -distance * x);
    const double from = std::atan2(y - center.y(), x - center.x());
    double sweep = std::atan2(-y - center.y(), -x - center.x()) - from;
    if (arc.isClockwise && sweep < 0) sweep += 2 * std::numbers::pi;
    if (!arc.isClockwise && sweep > 0) sweep -= 2 * std::numbers::pi;
    const QPointF radii(arc.radiusX * growth, arc.radiusY * growth);
    const QPointF middle = (start + arc.end) / 2;
    // A curve for each quarter at most: the toolkit's own arcs begin a little beside their
    // beginning.
    const int pieces =
        std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / (std::numbers::pi / 2) - 1e-6)));
    const double step = sweep / pieces;
    const double reach = 4.0 / 3 * std::tan(step / 4);
    const auto onEllipse = [&](double unitX, double unitY) {
        return middle + QPointF((center.x() + unitX) * radii.x(), (center.y() + unitY) * radii.y());
    };
    for (int i = 0; i < pieces; ++i) {
        const double at = from + i * step;
        const double c0 = std::cos(at), s0 = std::sin(at);
        const double c1 = std::cos(at + step), s1 = std::sin(at + step);
        path.cubicTo(onEllipse(c0 - reach * s0, s0 + reach * c0),
                     onEllipse(c1 + reach * s1, s1 - reach * c1),
                     i + 1 == pieces ? arc.end : onEllipse(c1, s1));
    }
}

class PathReader {
  public:
    explicit PathReader(std::string_view data) : scanner_(data) {}

    std::optional<QPainterPath> read() {
        for (scanner_.skipSpace(); !scanner_.isAtEnd(); scanner_.skipSpace()) {
            // Figures without a letter go on with the last command; after a move they are lines.
            if (const auto letter = scanner_.takeLetter()) {
                command_ = *letter;
            } else if (command_ == 'M' || command_ == 'm') {
                command_ = command_ == 'M' ? 'L' : 'l';
            } else if (command_ == 'Z' || command_ == 'z') {
                return std::nullopt;
            }
            if (!step()) return std::nullopt;
        }
        return path_;
    }

  private:
    bool step() {
        origin_ = std::islower(static_cast<unsigned char>(command_)) ? path_.currentPosition()
                                                                     : QPointF();
        switch (std::toupper(static_cast<unsigned char>(command_))) {
            case 'M':
                return move();
            case 'L':
                return line();
            case 'H':
                return straight(true);
            case 'V':
                return straight(false);
            case 'C':
                return curve();
            case 'A':
                return arc();
            case 'Z':
                path_.closeSubpath();
                return true;
            default:
                return false;
        }
    }

    std::optional<QPointF> point() {
        const auto x = scanner_.takeNumber();
        const auto y = scanner_.takeNumber();
        return x && y ? std::optional(origin_ + QPointF(*x, *y)) : std::nullopt;
    }

    bool move() {
        const auto to = point();
        if (to) path_.moveTo(*to);
        return to.has_value();
    }

    bool line() {
        const auto to = point();
        if (to) path_.lineTo(*to);
        return to.has_value();
    }

    bool straight(bool isHorizontal) {
        const auto way = scanner_.takeNumber();
        if (!way) return false;
        QPointF to = path_.currentPosition();
        (isHorizontal ? to.rx() : to.ry()) = *way + (isHorizontal ? origin_.x() : origin_.y());
        path_.lineTo(to);
        return true;
    }

    bool curve() {
        const std::array points{point(), point(), point()};
        if (!std::ranges::all_of(points, [](const auto& p) { return p.has_value(); })) return false;
        path_.cubicTo(*points[0], *points[1], *points[2]);
        return true;
    }

    bool arc() {
        const auto radiusX = scanner_.takeNumber();
        const auto radiusY = scanner_.takeNumber();
        const auto turn = scanner_.takeNumber();
        const auto isLarge = scanner_.takeFlag();
        const auto isClockwise = scanner_.takeFlag();
        const auto end = point();
        if (!radiusX || !radiusY || turn != 0 || !isLarge || !isClockwise || !end) return false;
        addArc(path_, {*radiusX, *radiusY, *isLarge, *isClockwise, *end});
        return true;
    }

    TextScanner scanner_;
    QPainterPath path_;
    QPointF origin_;
    char command_ = 'Z';
};

}  // namespace

std::optional<QPainterPath> pathOfData(std::string_view data) {
    return PathReader(data).read();
}

}  // namespace vantor

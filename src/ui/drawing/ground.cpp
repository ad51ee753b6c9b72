#include "ui/drawing/ground.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantor {

namespace {

constexpr int bandHeight = 32;

struct Rgb {
    double red, green, blue;

    static Rgb of(const QColor& color) { return {color.redF(), color.greenF(), color.blueF()}; }
    Rgb towards(const Rgb& other, double share) const {
        return {std::lerp(red, other.red, share), std::lerp(green, other.green, share),
                std::lerp(blue, other.blue, share)};
    }
    QRgb pixel() const {
        const auto level = [](double x) { return static_cast<int>(std::lround(x * 255)); };
        return qRgb(level(red), level(green), level(blue));
    }
};

/// The gradient's colours, `place` of the way from its first corner to its last.
class Stops {
  public:
    explicit Stops(ColorScheme scheme) {
        const auto stops = VantorTheme::background(scheme, QRectF(0, 0, 1, 1)).stops();
        for (std::size_t i = 0; i < colors_.size(); ++i)
            colors_[i] = Rgb::of(stops.at(static_cast<qsizetype>(i)).second);
    }
    Rgb at(double place) const {
        const double twice = std::clamp(place, 0.0, 1.0) * 2;
        return twice < 1 ? colors_[0].towards(colors_[1], twice)
                         : colors_[1].towards(colors_[2], twice - 1);
    }

  private:
    std::array<Rgb, 3> colors_{};
};

}  // namespace

void Ground::fit(QSize window, ColorScheme scheme, Qt::LayoutDirection way) {
    window = window.expandedTo(QSize(1, 1));
    const bool isMirrored = way == Qt::RightToLeft;
    if (window == windowSize_ && scheme == scheme_ && isMirrored == isMirrored_) return;
    isMirrored_ = isMirrored;
    windowSize_ = window;
    scheme_ = scheme;
    slope_ = static_cast<double>(window.height()) / window.width();
    window_ = makeBand(0);
    card_ = makeBand(VantorTheme::card(scheme).alphaF());
}

int Ground::shiftOf(int band) const {
    return static_cast<int>(std::lround(band * bandHeight * slope_));
}

/// Where in the band the row of pixels begins that lies at the window's left edge.
int Ground::sourceOf(int band) const {
    const int lastBand = (windowSize_.height() - 1) / bandHeight;
    return isMirrored_ ? shiftOf(lastBand) - shiftOf(band) : shiftOf(band);
}

QImage Ground::makeBand(double cardOpacity) const {
    const double width = windowSize_.width();
    const double height = windowSize_.height();
    const int lastBand = (windowSize_.height() - 1) / bandHeight;
    QImage band(windowSize_.width() + shiftOf(lastBand), bandHeight, QImage::Format_RGB32);
    const Stops stops(scheme_);
    const Rgb card = Rgb::of(VantorTheme::card(scheme_));
    const double length = width * width + height * height;
    for (int y = 0; y < band.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(band.scanLine(y));
        const double down = (y + 0.5) * height;
        for (int x = 0; x < band.width(); ++x) {
            const double across = isMirrored_ ? band.width() - x - 0.5 : x + 0.5;
            const double place = (across * width + down) / length;
            line[x] = stops.at(place).towards(card, cardOpacity).pixel();
        }
    }
    return band;
}

void Ground::paint(QPainter& painter, Layer layer, const QRect& area, QPoint origin) const {
    const QRect part = area & QRect(QPoint(), windowSize_);
    if (part.isEmpty()) return;
    const QImage& image = band(layer);
    for (int top = part.top(); top <= part.bottom();) {
        const int number = top / bandHeight;
        const int bottom = std::min((number + 1) * bandHeight - 1, part.bottom());
        const QRect source(part.left() + sourceOf(number), top - number * bandHeight, part.width(),
                           bottom - top + 1);
        painter.drawImage(QPoint(part.left(), top) + origin, image, source);
        top = bottom + 1;
    }
}

QColor Ground::color(Layer layer, QPoint place) const {
    const int x = std::clamp(place.x(), 0, windowSize_.width() - 1);
    const int y = std::clamp(place.y(), 0, windowSize_.height() - 1);
    const int number = y / bandHeight;
    return band(layer).pixelColor(x + sourceOf(number), y - number * bandHeight);
}

}  // namespace vantor

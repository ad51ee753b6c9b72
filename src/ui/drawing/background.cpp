#include "ui/drawing/background.h"

#include <algorithm>
#include <cmath>

namespace vantor {

namespace {

constexpr int bandHeight = 16;

/// One colour, or a step from one to another; levels from 0 to 255.
struct Rgb {
    float red, green, blue;

    static Rgb of(const QColor& color) {
        return {color.redF() * 255, color.greenF() * 255, color.blueF() * 255};
    }
    Rgb towards(const Rgb& other, float share) const {
        return {std::lerp(red, other.red, share), std::lerp(green, other.green, share),
                std::lerp(blue, other.blue, share)};
    }
    Rgb stepTo(const Rgb& other) const {
        return {other.red - red, other.green - green, other.blue - blue};
    }
};

/// The gradient's colours, `place` of the way from its first corner to its last. Called for every
/// pixel of a window's background: plain sums, which the compiler vectorises.
class Stops {
  public:
    Stops(ColorScheme scheme, float cardOpacity) {
        const auto stops = VantorTheme::background(scheme, QRectF(0, 0, 1, 1)).stops();
        const Rgb card = Rgb::of(VantorTheme::card(scheme));
        const auto color = [&](qsizetype i) {
            return Rgb::of(stops.at(i).second).towards(card, cardOpacity);
        };
        first_ = color(0);
        toMiddle_ = first_.stepTo(color(1));
        toLast_ = color(1).stepTo(color(2));
    }
    QRgb at(float place) const {
        const float half = std::min(std::max(place * 2, 0.0F), 1.0F);
        const float other = std::min(std::max(place * 2 - 1, 0.0F), 1.0F);
        const auto level = [&](float from, float toMiddle, float toLast) {
            return static_cast<QRgb>(from + half * toMiddle + other * toLast + 0.5F);
        };
        return 0xff000000U | level(first_.red, toMiddle_.red, toLast_.red) << 16 |
               level(first_.green, toMiddle_.green, toLast_.green) << 8 |
               level(first_.blue, toMiddle_.blue, toLast_.blue);
    }

  private:
    Rgb first_{};
    Rgb toMiddle_{};
    Rgb toLast_{};
};

}  // namespace

void Background::fit(QSize window, ColorScheme scheme, Qt::LayoutDirection way) {
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

int Background::shiftOf(int band) const {
    return static_cast<int>(std::lround(band * bandHeight * slope_));
}

/// Where in the band the row of pixels begins that lies at the window's left edge.
int Background::sourceOf(int band) const {
    const int lastBand = (windowSize_.height() - 1) / bandHeight;
    return isMirrored_ ? shiftOf(lastBand) - shiftOf(band) : shiftOf(band);
}

QImage Background::makeBand(double cardOpacity) const {
    const double width = windowSize_.width();
    const double height = windowSize_.height();
    const int lastBand = (windowSize_.height() - 1) / bandHeight;
    QImage band(windowSize_.width() + shiftOf(lastBand), bandHeight, QImage::Format_RGB32);
    const Stops stops(scheme_, static_cast<float>(cardOpacity));
    const double length = width * width + height * height;
    const auto step = static_cast<float>(width / length);
    for (int y = 0; y < band.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(band.scanLine(y));
        const auto down = static_cast<float>((y + 0.5) * height / length);
        const int count = band.width();
        const float first = isMirrored_ ? static_cast<float>(count) - 0.5F : 0.5F;
        const float way = isMirrored_ ? -1 : 1;
        for (int x = 0; x < count; ++x)
            line[x] = stops.at((first + way * static_cast<float>(x)) * step + down);
    }
    return band;
}

void Background::paint(QPainter& painter, Layer layer, const QRect& area, QPoint origin) const {
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

QColor Background::color(Layer layer, QPoint place) const {
    const int x = std::clamp(place.x(), 0, windowSize_.width() - 1);
    const int y = std::clamp(place.y(), 0, windowSize_.height() - 1);
    const int number = y / bandHeight;
    return band(layer).pixelColor(x + sourceOf(number), y - number * bandHeight);
}

}  // namespace vantor

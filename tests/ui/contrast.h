#pragma once

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <map>

namespace vantor {

/// The relative luminance of an opaque colour, 0 to 1, as the Web Content Accessibility Guidelines
/// define it.
inline double luminanceOf(const QColor& color) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// 1 (the same) to 21 (black on white).
inline double contrastBetween(const QColor& one, const QColor& other) {
    const double a = luminanceOf(one);
    const double b = luminanceOf(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// The contrast of what is written in a picture to its background: that of its commonest colour and
/// the colour farthest from it.
inline double contrastIn(const QImage& image) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    if (counts.empty()) return 1;
    const QColor background =
        std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
            return a.second < b.second;
        })->first;
    double farthest = 1;
    for (const auto& [color, count] : counts)
        farthest = std::max(farthest, contrastBetween(background, color));
    return farthest;
}

}  // namespace vantor

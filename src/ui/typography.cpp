#include "ui/typography.h"

#include <QApplication>
#include <QFontMetrics>

#include <algorithm>
#include <cmath>

#include "ui/drawing/digits.h"

namespace vantor::Typography {

namespace {

constexpr double referenceSize = 13;

/// What QFontInfo says of a font of any size, without loading the font for it: most sizes that are
/// asked for draw nothing.
int pixelSizeOf(const QFont& font) {
    if (font.pixelSize() > 0) return font.pixelSize();
    constexpr double pointsPerInch = 72;
    return static_cast<int>(
        std::lround(font.pointSizeF() * QFontMetrics(font).fontDpi() / pointsPerInch));
}

double systemPixelSize() {
    return pixelSizeOf(QApplication::font());
}

double widestDigit(const QFontMetricsF& metrics, QChar zero) {
    double widest = 0;
    for (char16_t value = 0; value <= 9; ++value) {
        const QChar digit(static_cast<char16_t>(zero.unicode() + value));
        widest = std::max(widest, metrics.horizontalAdvance(digit));
    }
    return widest;
}

/// Calls visit(run, isDigit) for each digit and each run of other characters.
template <class Visit>
void forEachRun(const QString& text, Visit&& visit) {
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = start + 1;
        const bool digit = isDigit(text[start]);
        while (!digit && end < text.size() && !isDigit(text[end]))
            ++end;
        visit(text.mid(start, end - start), digit);
        start = end;
    }
}

}  // namespace

QFont font(double size, QFont::Weight weight) {
    QFont result = QApplication::font();
    const double factor = size / referenceSize;
    if (result.pointSizeF() > 0) {
        result.setPointSizeF(result.pointSizeF() * factor);
    } else {
        result.setPixelSize(std::max(1, static_cast<int>(std::lround(systemPixelSize() * factor))));
    }
    result.setWeight(weight);
    return result;
}

QFont font(const TextStyle& style) {
    QFont result = font(style.size, style.weight);
    if (style.minPixels > pixelSizeOf(result))
        result.setPixelSize(static_cast<int>(std::lround(style.minPixels)));
    return result;
}

double lengthScale() {
    return std::max(1.0, systemPixelSize() / referenceSize);
}

int scaled(double length) {
    return static_cast<int>(std::lround(length * lengthScale()));
}

bool differInDigitsOnly(const QString& one, const QString& other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](QChar a, QChar b) { return a == b || (isDigit(a) && isDigit(b)); });
}

double digitTextWidth(const QString& text, const QFontMetricsF& metrics) {
    // Measuring ten digits costs: not for the many texts that have none.
    const auto first = std::find_if(text.begin(), text.end(), isDigit);
    const double digitWidth = first != text.end() ? widestDigit(metrics, zeroOf(*first)) : 0;
    double width = 0;
    forEachRun(text, [&](const QString& run, bool digit) {
        width += digit ? digitWidth : metrics.horizontalAdvance(run);
    });
    return width;
}

}  // namespace vantor::Typography

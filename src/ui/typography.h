#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>

namespace vantor {

/// How a text looks: its size for a system font of 13, and its weight.
struct TextStyle {
    double size = 13;
    QFont::Weight weight = QFont::Normal;
    double minPixels = 0;  ///< never smaller than this, whatever the system's font

    bool operator==(const TextStyle&) const = default;
};

}  // namespace vantor

/// Text follows the system's font and its size. Sizes are given for a system font of 13 and scale
/// with the real one. Where a style has no counterpart in that font (rounded digits), the nearest
/// is used.
namespace vantor::Typography {

inline constexpr double body = 13;
inline constexpr double headline = 13;
// Figures are read at arm's length: below this size digits are illegible on an ordinary screen.
inline constexpr double caption = 11.5;
inline constexpr double caption2 = 10.5;

/// The longest text that is shaped: more would not fit on any screen.
inline constexpr qsizetype maxLineLength = 1024;

/// The system's font at a size.
QFont font(double size, QFont::Weight weight = QFont::Normal);
QFont font(const TextStyle& style);

/// What lengths that hold text are multiplied with: 1, or more where the system's font is larger.
double lengthScale();

/// `length` in those terms, rounded to whole points.
int scaled(double length);

/// The width of `text` with all digits as wide as the widest one.
double digitTextWidth(const QString& text, const QFontMetricsF& metrics);

/// Whether both texts are that wide in any font, having digits in the same places and all else
/// alike.
bool differInDigitsOnly(const QString& one, const QString& other);

}  // namespace vantor::Typography

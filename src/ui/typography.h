#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QString>

/// Text follows the system's font and its size. Sizes are given for a system font of 13 and scale
/// with the real one.
namespace vantor::Typography {

inline constexpr double body = 13;
inline constexpr double headline = 13;
// Small text is for figures that are read at arm's length: below this, an ordinary screen turns the
// digits to mush.
inline constexpr double caption = 11.5;
inline constexpr double caption2 = 10.5;

/// The system's font at a size.
QFont font(double size, QFont::Weight weight = QFont::Normal);

/// What lengths that hold text are multiplied with: 1, or more where the system's font is larger.
double lengthScale();

/// `length` in those terms, rounded to whole points.
int scaled(double length);

/// `text` as it can be drawn on one line: without line breaks and control characters, and no longer
/// than any screen could show.
QString onOneLine(const QString& text);

/// The width of `text` with all digits as wide as the widest one.
double digitTextWidth(const QString& text, const QFontMetricsF& metrics);

/// Draws one line of text in the painter's font and pen with all digits equally wide, so that a
/// number that changes does not move its neighbours. Many fonts have only proportional digits.
void drawDigitText(QPainter& painter, const QRectF& area, Qt::Alignment alignment,
                   const QString& text);

/// Draws one line of text, cut with an ellipsis where it does not fit. Control characters and line
/// breaks in it are drawn as blanks.
void drawLine(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text,
              Qt::TextElideMode elide = Qt::ElideRight);

}  // namespace vantor::Typography

#include "ui/typography.h"

#include <QApplication>
#include <QFontInfo>

#include <algorithm>
#include <cmath>

namespace vantor::Typography {

namespace {

constexpr double referenceSize = 13;
// The longest text worth shaping: whatever is cut off would not fit on any screen.
constexpr qsizetype longestLine = 1024;

double systemPixelSize() {
    return QFontInfo(QApplication::font()).pixelSize();
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

double widestDigit(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t c = u'0'; c <= u'9'; ++c) {
        widest = std::max(widest, metrics.horizontalAdvance(QChar(c)));
    }
    return widest;
}

bool hasEqualDigits(const QFontMetricsF& metrics, double widest) {
    for (char16_t c = u'0'; c <= u'9'; ++c) {
        if (std::abs(metrics.horizontalAdvance(QChar(c)) - widest) > 0.01) return false;
    }
    return true;
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

double baseline(const QRectF& area, Qt::Alignment alignment, const QFontMetricsF& metrics) {
    if (alignment & Qt::AlignTop) return area.top() + metrics.ascent();
    if (alignment & Qt::AlignBottom) return area.bottom() - metrics.descent();
    return area.top() + (area.height() - metrics.height()) / 2 + metrics.ascent();
}

double leftEdge(const QRectF& area, Qt::Alignment alignment, double width) {
    if (alignment & Qt::AlignRight) return area.right() - width;
    if (alignment & Qt::AlignHCenter) return area.left() + (area.width() - width) / 2;
    return area.left();
}

}  // namespace

QString onOneLine(const QString& text) {
    QString line = text.left(longestLine);
    for (QChar& c : line) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator) {
            c = u' ';
        }
    }
    return line;
}

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

double lengthScale() {
    return std::max(1.0, systemPixelSize() / referenceSize);
}

int scaled(double length) {
    return static_cast<int>(std::lround(length * lengthScale()));
}

double digitTextWidth(const QString& text, const QFontMetricsF& metrics) {
    const double digitWidth = widestDigit(metrics);
    double width = 0;
    forEachRun(text, [&](const QString& run, bool digit) {
        width += digit ? digitWidth : metrics.horizontalAdvance(run);
    });
    return width;
}

void drawDigitText(QPainter& painter, const QRectF& area, Qt::Alignment alignment,
                   const QString& text) {
    const QFontMetricsF metrics(painter.font(), painter.device());
    const double digitWidth = widestDigit(metrics);
    const double y = baseline(area, alignment, metrics);
    double x = leftEdge(area, alignment, digitTextWidth(text, metrics));
    if (hasEqualDigits(metrics, digitWidth)) {
        painter.drawText(QPointF(x, y), text);
        return;
    }
    forEachRun(text, [&](const QString& run, bool digit) {
        const double advance = metrics.horizontalAdvance(run);
        painter.drawText(QPointF(digit ? x + (digitWidth - advance) / 2 : x, y), run);
        x += digit ? digitWidth : advance;
    });
}

void drawLine(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text,
              Qt::TextElideMode elide) {
    const QFontMetricsF metrics(painter.font(), painter.device());
    const QString line = metrics.elidedText(onOneLine(text), elide, area.width());
    const double width = metrics.horizontalAdvance(line);
    painter.drawText(QPointF(leftEdge(area, alignment, width), baseline(area, alignment, metrics)),
                     line);
}

}  // namespace vantor::Typography

#include "ui/components/text_line.h"

#include <algorithm>
#include <cmath>

#include "ui/drawing/view_painter.h"
#include "ui/theme.h"

namespace vantor {

TextLineView::TextLineView(QString text, double size, QFont::Weight weight, Tone tone,
                           QWidget* parent)
    : PaintedView(parent), text_(std::move(text)), size_(size), weight_(weight), tone_(tone) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TextLineView::show(const QString& text) {
    if (text == text_) return;
    // All digits are equally wide: a clock's next second has the same width.
    const bool isAsWide = Typography::differInDigitsOnly(text, text_);
    const int before = isAsWide ? 0 : sizeHint().width();
    text_ = text;
    if (!isAsWide && sizeHint().width() != before) updateGeometry();
    update();
    announceName();
}

void TextLineView::setAlignment(Qt::Alignment alignment) {
    alignment_ = alignment;
    update();
}

QSize TextLineView::sizeHint() const {
    const QFontMetricsF metrics(Typography::font(size_, weight_), this);
    const double width = std::max(wholeLineWidth(*this, {size_, weight_}, text_),
                                  Typography::digitTextWidth(text_, metrics));
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(metrics.height()))};
}

QSize TextLineView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void TextLineView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    if (tone_ == Tone::primary) {
        painter.primary();
    } else {
        painter.secondary();
    }
    const TextStyle style{size_, weight_};
    const Qt::Alignment alignment = alignment_ | Qt::AlignVCenter;
    if (painter.figuresWidth(style, text_) > width()) {
        painter.line(style, rect(), alignment, text_);
    } else {
        painter.figures(style, rect(), alignment, text_);
    }
}

}  // namespace vantor

#include "ui/components/text_line.h"

#include <QStyle>

#include <cmath>

#include "ui/theme.h"

namespace vantor {

TextLineView::TextLineView(QString text, double size, QFont::Weight weight, Tone tone,
                           QWidget* parent)
    : PaintedView(parent), text_(std::move(text)), size_(size), weight_(weight), tone_(tone) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TextLineView::show(const QString& text) {
    if (text == text_) return;
    const int before = sizeHint().width();
    text_ = text;
    if (sizeHint().width() != before) updateGeometry();
    update();
}

void TextLineView::setAlignment(Qt::Alignment alignment) {
    alignment_ = alignment;
    update();
}

QSize TextLineView::sizeHint() const {
    const QFontMetricsF metrics(Typography::font(size_, weight_), this);
    return {static_cast<int>(std::ceil(Typography::digitTextWidth(text_, metrics))),
            static_cast<int>(std::ceil(metrics.height()))};
}

QSize TextLineView::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void TextLineView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(Typography::font(size_, weight_));
    const ColorScheme scheme = colorScheme(*this);
    if (tone_ == Tone::primary) {
        vantorPrimaryForeground(painter, scheme);
    } else {
        vantorSecondaryForeground(painter, scheme);
    }
    const Qt::Alignment alignment =
        QStyle::visualAlignment(layoutDirection(), alignment_) | Qt::AlignVCenter;
    if (sizeHint().width() > width()) {
        Typography::drawLine(painter, rect(), alignment, text_);
    } else {
        Typography::drawDigitText(painter, rect(), alignment, text_);
    }
}

}  // namespace vantor

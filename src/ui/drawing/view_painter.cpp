#include "ui/drawing/view_painter.h"

#include <QStyle>

#include "ui/drawing/background_view.h"

namespace vantor {

double wholeLineWidth(const QWidget& view, const TextStyle& style, const QString& text) {
    BackgroundView* const below = BackgroundView::behind(view);
    return below ? below->kit().shapes.lineWidth(style, text)
                 : GlyphRunCache().lineWidth(style, text);
}

ViewPainter::ViewPainter(QWidget& view)
    : QPainter(&view),
      width_(view.width()),
      isMirrored_(view.isRightToLeft()),
      scheme_(colorScheme(view)) {
    BackgroundView* const below = BackgroundView::behind(view);
    kit_ = below ? &below->kit() : &own_.emplace();
    setRenderHint(QPainter::Antialiasing);
}

QRectF ViewPainter::leading(const QRectF& area) const {
    if (!isMirrored_) return area;
    return {width_ - area.right(), area.top(), area.width(), area.height()};
}

Qt::Alignment ViewPainter::leading(Qt::Alignment alignment) const {
    return QStyle::visualAlignment(isMirrored_ ? Qt::RightToLeft : Qt::LeftToRight, alignment);
}

void ViewPainter::line(const TextStyle& style, const QRectF& area, Qt::Alignment alignment,
                       const QString& text, Qt::TextElideMode cut) {
    kit_->shapes.drawLine(*this, style, leading(area), leading(alignment), text, cut);
}

void ViewPainter::figures(const TextStyle& style, const QRectF& area, Qt::Alignment alignment,
                          const QString& text) {
    kit_->shapes.drawFigures(*this, style, leading(area), leading(alignment), text);
}

}  // namespace vantor

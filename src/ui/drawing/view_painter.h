#pragma once

#include <QPainter>
#include <QWidget>

#include <optional>

#include "ui/drawing/paint_cache.h"
#include "ui/theme.h"

namespace vantor {

/// The room in which a view paints a line whole: measured as it is painted. The toolkit's own
/// measure of a text is now and then narrower, and the line would lose its end.
double wholeLineWidth(const QWidget& view, const TextStyle& style, const QString& text);

/// Paints one view, with soft edges. Places count from the leading edge: where the language is read
/// from right to left, `leading` and the texts mirror them, so that a view is written for one
/// direction only. Charts and rings run one way in any language, as clocks do. Uses the window's
/// cache.
class ViewPainter : public QPainter {
  public:
    explicit ViewPainter(QWidget& view);

    ColorScheme scheme() const { return scheme_; }
    bool isMirrored() const { return isMirrored_; }
    void primary() { vantorPrimaryForeground(*this, scheme_); }
    void secondary() { vantorSecondaryForeground(*this, scheme_); }

    /// The place of what is at `area` where the language is read from left to right.
    QRectF leading(const QRectF& area) const;

    LineRaster& lines() { return kit_->lines; }
    RingRaster& rings() { return kit_->rings; }

    double lineHeight(const TextStyle& style) { return kit_->shapes.height(style); }
    double figuresWidth(const TextStyle& style, const QString& text) {
        return kit_->shapes.figuresWidth(style, text);
    }
    double lineWidth(const TextStyle& style, const QString& text) {
        return kit_->shapes.lineWidth(style, text);
    }
    void line(const TextStyle& style, const QRectF& area, Qt::Alignment alignment,
              const QString& text, Qt::TextElideMode cut = Qt::ElideRight);
    void figures(const TextStyle& style, const QRectF& area, Qt::Alignment alignment,
                 const QString& text);

  private:
    Qt::Alignment leading(Qt::Alignment alignment) const;

    double width_;
    bool isMirrored_;
    ColorScheme scheme_;
    std::optional<PaintCache> own_;  // of a view without a background view
    PaintCache* kit_;                // the window's, else own_
};

}  // namespace vantor

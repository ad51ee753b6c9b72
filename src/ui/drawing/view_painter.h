#pragma once

#include <QPainter>
#include <QWidget>

#include <optional>

#include "ui/drawing/text_shapes.h"
#include "ui/theme.h"

namespace vantor {

/// Paints one view, with soft edges. Places count from the leading edge: where the language is read
/// from right to left, `leading` and the texts mirror them, so that a view is written for one
/// direction only. Texts come from the shapes that the window keeps.
class ViewPainter : public QPainter {
  public:
    explicit ViewPainter(QWidget& view);

    ColorScheme scheme() const { return scheme_; }
    bool isMirrored() const { return isMirrored_; }
    void primary() { vantorPrimaryForeground(*this, scheme_); }
    void secondary() { vantorSecondaryForeground(*this, scheme_); }

    /// Where something lies that is at `area` for who reads from left to right.
    QRectF leading(const QRectF& area) const;

    double lineHeight(const TextStyle& style) { return shapes_->height(style); }
    double figuresWidth(const TextStyle& style, const QString& text) {
        return shapes_->figuresWidth(style, text);
    }
    double lineWidth(const TextStyle& style, const QString& text) {
        return shapes_->lineWidth(style, text);
    }
    void line(const TextStyle& style, const QRectF& area, Qt::Alignment alignment,
              const QString& text);
    void figures(const TextStyle& style, const QRectF& area, Qt::Alignment alignment,
                 const QString& text);

  private:
    Qt::Alignment leading(Qt::Alignment alignment) const;

    double width_;
    bool isMirrored_;
    ColorScheme scheme_;
    std::optional<TextShapes> own_;  // of a view that stands on no ground
    TextShapes* shapes_;             // the window's, else own_
};

}  // namespace vantor

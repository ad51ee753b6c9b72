#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QSize>

#include "ui/theme.h"

namespace vantor {

/// The window's background and the card colour over it, as pixels to copy.
///
/// Along a diagonal gradient each row is the row above it, shifted. So a band of a few rows, wider
/// than the window by the whole shift, holds everything: copying parts of it costs a
/// tenth of computing the gradient, and a tenth of the memory of a picture of the whole. Everything
/// here counts in device pixels from the window's top left corner. Main thread.
class Background {
  public:
    enum class Layer {
        window,  ///< the background itself
        card     ///< a card's colour over it
    };

    /// Makes the bands for a window of that size, unless they are those already. The gradient runs
    /// from the corner where reading begins.
    void fit(QSize window, ColorScheme scheme, Qt::LayoutDirection way = Qt::LeftToRight);

    /// Copies a part of a layer to its place. The painter must use device pixels; `origin` is the
    /// window's corner in them.
    void paint(QPainter& painter, Layer layer, const QRect& area, QPoint origin) const;

    /// The colour of a layer at a place.
    QColor color(Layer layer, QPoint place) const;

  private:
    const QImage& band(Layer layer) const { return layer == Layer::card ? card_ : window_; }
    int shiftOf(int band) const;
    int sourceOf(int band) const;
    QImage makeBand(double cardOpacity) const;

    QSize windowSize_;
    ColorScheme scheme_ = ColorScheme::dark;
    bool isMirrored_ = false;
    double slope_ = 0;  // how far a row is shifted against the one above it
    QImage window_;
    QImage card_;
};

}  // namespace vantor

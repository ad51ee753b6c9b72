#pragma once

#include <QWidget>

#include "ui/drawing/background.h"
#include "ui/drawing/paint_cache.h"

namespace vantor {

/// The bottom view of a window: paints the window's background, and has the cache that its views
/// draw with.
class BackgroundView : public QWidget {
  public:
    explicit BackgroundView(QWidget* parent = nullptr) : QWidget(parent) {}

    /// The one that contains `view`; null where there is none.
    static BackgroundView* behind(const QWidget& view);

    /// As the view is now, for a device with that many pixels to a point.
    const Background& background(double scale);

    PaintCache& kit() { return kit_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Background background_;
    PaintCache kit_;
};

}  // namespace vantor

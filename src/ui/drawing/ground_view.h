#pragma once

#include <QWidget>

#include "ui/drawing/drawing_kit.h"
#include "ui/drawing/ground.h"

namespace vantor {

/// What all views of a window stand on: it paints the window's background, and lends the views what
/// they draw with.
class GroundView : public QWidget {
  public:
    explicit GroundView(QWidget* parent = nullptr) : QWidget(parent) {}

    /// The one that `view` stands on; null where there is none.
    static GroundView* behind(const QWidget& view);

    /// As the view is now, for a device with that many pixels to a point.
    const Ground& ground(double scale);

    DrawingKit& kit() { return kit_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Ground ground_;
    DrawingKit kit_;
};

}  // namespace vantor

#pragma once

#include <QWidget>

#include "ui/drawing/ground.h"
#include "ui/drawing/text_shapes.h"

namespace vantor {

/// What all views of a window stand on: it paints the window's background, and lends the views what
/// they draw with.
class GroundView : public QWidget {
  public:
    explicit GroundView(QWidget* parent = nullptr) : QWidget(parent) {}

    /// The one that `view` stands on; null where there is none.
    static GroundView* behind(const QWidget& view);

    /// As the view is now: its size, its screen's resolution and its colours.
    const Ground& ground();

    TextShapes& shapes() { return shapes_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Ground ground_;
    TextShapes shapes_;
};

}  // namespace vantor

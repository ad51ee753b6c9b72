#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include <limits>

#include "ui/components/painted_view.h"
#include "ui/drawing/view_painter.h"

namespace vantor {

/// A share of a whole as a ring, with a large text and a caption in the middle.
struct RingGauge {
    /// The value of a gauge that shows no share yet; drawn as an empty ring.
    static constexpr double noValue = std::numeric_limits<double>::quiet_NaN();

    double value = 0;  ///< 0 to 1; clamped when drawn, the texts are drawn as they are
    QString title;
    QString detail;
    QColor accent;
    double lineWidth = 12;

    bool operator==(const RingGauge&) const = default;
};

/// The ring of a gauge that fills `bounds`.
struct RingGaugeGeometry {
    QRectF circle;     ///< the middle of the stroke: the whole ring stays within the bounds
    double sweep = 0;  ///< degrees clockwise from the top, 0 to 360

    static RingGaugeGeometry make(const QRectF& bounds, double value, double lineWidth);
    bool operator==(const RingGaugeGeometry&) const = default;
};

/// Draws a gauge, 126 points square (more with a larger system font).
class RingGaugeView : public PaintedView {
  public:
    explicit RingGaugeView(RingGauge gauge, QWidget* parent = nullptr);

    void show(const RingGauge& gauge);
    const RingGauge& gauge() const { return gauge_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::ProgressBar; }
    QString accessibleLabel() const override { return gauge_.detail; }
    QString accessibleValueText() const override { return gauge_.title; }
    std::optional<double> accessibleFraction() const override;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintRing(ViewPainter& painter, const RingGaugeGeometry& geometry, double width) const;

    RingGauge gauge_;
};

}  // namespace vantor

#pragma once

#include <QColor>
#include <QRectF>

#include "ui/components/painted_view.h"
#include "ui/drawing/view_painter.h"

namespace vantor {

/// A share of a whole as a bar.
struct UsageBar {
    double value = 0;  ///< 0 to 1; clamped when drawn
    QColor accent;
    double height = 6;

    bool operator==(const UsageBar&) const = default;
};

/// The parts of a bar that fills `bounds`.
struct UsageBarGeometry {
    QRectF track;
    QRectF fill;  ///< from the leading edge; without width at zero

    static UsageBarGeometry make(const QRectF& bounds, double value);
    bool operator==(const UsageBarGeometry&) const = default;
};

/// Paints a bar across `bounds`, of its own height in the middle of them.
void paintUsageBar(ViewPainter& painter, const QRectF& bounds, const UsageBar& bar);

/// Draws a bar across its whole width.
class UsageBarView : public PaintedView {
  public:
    /// `label` is for assistive technology.
    UsageBarView(QString label, UsageBar bar, QWidget* parent = nullptr);

    void show(const UsageBar& bar);
    const UsageBar& bar() const { return bar_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::ProgressBar; }
    QString accessibleLabel() const override { return label_; }
    QString accessibleValueText() const override;
    std::optional<double> accessibleFraction() const override {
        if (bar_.value != bar_.value) return std::nullopt;  // not a number
        return UsageBarGeometry::make({0, 0, 1, 1}, bar_.value).fill.width();
    }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString label_;
    UsageBar bar_;
};

}  // namespace vantor

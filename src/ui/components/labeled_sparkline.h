#pragma once

#include <QColor>
#include <QString>

#include <span>
#include <vector>

#include "ui/components/painted_view.h"

namespace vantor {

/// A series under its name and its newest value.
struct LabeledSparkline {
    QString label;
    QString value;
    std::vector<double> values;  ///< oldest first
    QColor color;

    bool operator==(const LabeledSparkline&) const = default;
};

/// Draws it across its whole width; the chart is 54 points high (more with a larger system font).
class LabeledSparklineView : public PaintedView {
  public:
    explicit LabeledSparklineView(LabeledSparkline sparkline, QWidget* parent = nullptr);

    /// Shows other values under the same label.
    void show(const QString& value, std::span<const double> values);
    const LabeledSparkline& sparkline() const { return sparkline_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    QString accessibleLabel() const override { return sparkline_.label; }
    QString accessibleValueText() const override { return sparkline_.value; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double textHeight() const;

    LabeledSparkline sparkline_;
};

}  // namespace vantor

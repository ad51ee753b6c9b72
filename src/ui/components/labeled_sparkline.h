#pragma once

#include <QColor>
#include <QString>

#include <span>
#include <vector>

#include "ui/components/chart_view.h"

namespace vantor {

/// A series under its name and its newest value.
struct LabeledSparkline {
    QString label;
    QString value;
    std::vector<double> values;  ///< oldest first
    QColor color;

    bool operator==(const LabeledSparkline&) const = default;
};

/// Draws a series of rates across its whole width; the chart is 54 points high (more with a larger
/// system font).
class LabeledSparklineView : public ChartView {
  public:
    explicit LabeledSparklineView(LabeledSparkline sparkline, QWidget* parent = nullptr);

    /// Shows other values under the same label, of those times in seconds where they are known.
    void show(const QString& value, std::span<const double> values,
              std::span<const double> times = {});
    const LabeledSparkline& sparkline() const { return sparkline_; }

    QString accessibleLabel() const override { return sparkline_.label; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    std::span<const double> samples() const override { return sparkline_.values; }
    std::optional<std::pair<double, double>> fixedRange() const override { return std::nullopt; }
    QString newestText() const override { return sparkline_.value; }
    QRectF chartArea() const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    double textHeight() const;

    LabeledSparkline sparkline_;
};

}  // namespace vantor

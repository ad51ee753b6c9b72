#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "ui/components/chart_view.h"
#include "ui/drawing/view_painter.h"

namespace vantor {

/// A short series as a line over a faint area, oldest first.
struct Sparkline {
    std::vector<double> values;
    QColor accent;
    std::optional<std::pair<double, double>> fixedRange;  ///< lower and upper; else the values' own

    bool operator==(const Sparkline&) const = default;
};

/// The points of a series in an area of that size.
struct SparklineGeometry {
    std::vector<QPointF> points;

    /// No points for no values or an area without width or height. A series of equal values lies
    /// along the bottom.
    static SparklineGeometry make(std::span<const double> values, double width, double height,
                                  std::optional<std::pair<double, double>> fixedRange);
};

/// Paints a series across `area`, the whole stroke within it.
void paintSparkline(ViewPainter& painter, const QRectF& area, std::span<const double> values,
                    const QColor& accent, std::optional<std::pair<double, double>> fixedRange);

/// Draws a series of shares across its whole width, 62 points high by default.
class SparklineView : public ChartView {
  public:
    SparklineView(QString label, Sparkline sparkline, int height, QWidget* parent = nullptr);

    /// Shows other values in the same style. `value` is the newest one, as a screen reader says it;
    /// `times` are those of the values, in seconds, where they are known.
    void show(std::span<const double> values, const QString& value,
              std::span<const double> times = {});
    const Sparkline& sparkline() const { return sparkline_; }

    QString accessibleLabel() const override { return label_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    std::span<const double> samples() const override { return sparkline_.values; }
    std::optional<std::pair<double, double>> fixedRange() const override {
        return sparkline_.fixedRange;
    }
    QString newestText() const override { return value_; }
    QRectF chartArea() const override { return rect(); }
    void paintEvent(QPaintEvent* event) override;

  private:
    QString label_;
    QString value_;
    Sparkline sparkline_;
    int height_;
};

}  // namespace vantor

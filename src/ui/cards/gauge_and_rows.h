#pragma once

#include <QWidget>

#include <span>
#include <vector>

#include "ui/components/metric_row.h"
#include "ui/components/ring_gauge.h"

class QVBoxLayout;

namespace vantor {

/// What most cards begin with: a gauge, and the figures beside it.
class GaugeAndRowsView : public QWidget {
  public:
    static constexpr double gaugeLineWidth = 12;

    /// The number of rows stays that of the construction.
    GaugeAndRowsView(const RingGauge& gauge, std::span<const MetricRow> rows,
                     QWidget* parent = nullptr);

    void show(const RingGauge& gauge, std::span<const MetricRow> rows);

    /// Puts a view of its own under the rows.
    void addLine(QWidget* line);

    RingGaugeView& gauge() { return *gauge_; }
    MetricRowView& row(std::size_t index) { return *rows_.at(index); }

  private:
    RingGaugeView* gauge_;  // all owned by this widget, as its children
    std::vector<MetricRowView*> rows_;
    QVBoxLayout* column_ = nullptr;
};

}  // namespace vantor

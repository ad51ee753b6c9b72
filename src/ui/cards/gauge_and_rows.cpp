#include "ui/cards/gauge_and_rows.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/components/make_child.h"

namespace vantor {

namespace {

constexpr int gaugeSpacing = 20;
constexpr int gaugeAndRowsRowSpacing = 10;

}  // namespace

GaugeAndRowsView::GaugeAndRowsView(const RingGauge& gauge, std::span<const MetricRow> rows,
                                   QWidget* parent)
    : QWidget(parent), gauge_(makeChild<RingGaugeView>(this, gauge)) {
    auto* whole = makeLayout<QHBoxLayout>(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(gaugeSpacing);
    whole->addWidget(gauge_, 0, Qt::AlignVCenter);
    column_ = makeInnerLayout<QVBoxLayout>();
    column_->setSpacing(gaugeAndRowsRowSpacing);
    column_->addStretch();
    for (const MetricRow& row : rows) {
        rows_.push_back(makeChild<MetricRowView>(this, row));
        column_->addWidget(rows_.back());
    }
    column_->addStretch();
    whole->addLayout(column_, 1);
}

void GaugeAndRowsView::addLine(QWidget* line) {
    column_->insertWidget(column_->count() - 1, line);
}

void GaugeAndRowsView::show(const RingGauge& gauge, std::span<const MetricRow> rows) {
    gauge_->show(gauge);
    for (std::size_t i = 0; i < std::min(rows.size(), rows_.size()); ++i)
        rows_[i]->show(rows[i]);
}

}  // namespace vantor

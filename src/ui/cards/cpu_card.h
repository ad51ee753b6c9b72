#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "model/cpu_stats.h"
#include "model/process_stats.h"
#include "platform/platform_words.h"
#include "platform/process_info.h"
#include "sampling/dashboard_state.h"
#include "ui/cards/core_activity.h"
#include "ui/cards/gauge_and_rows.h"
#include "ui/cards/process_mini_list.h"
#include "ui/components/dashboard_card.h"
#include "ui/components/sparkline.h"
#include "ui/components/text_line.h"

namespace vantor {

/// What the processor's card shows, borrowed from the published state. Two are equal when their
/// revisions are: a commit that did not touch them redraws nothing.
struct CPUCard {
    const CPUStats& stats;
    std::span<const double> history;
    std::span<const ProcessStats> processes;
    std::uint64_t revision = 0;
    std::uint64_t processRevision = 0;
    std::span<const double> historyTimes = {};

    static CPUCard of(const DashboardState& state);

    bool operator==(const CPUCard& other) const {
        return revision == other.revision && processRevision == other.processRevision;
    }

    /// Before the first reading: says that it waits, and shows no number.
    bool isWaiting() const { return revision == 0; }

    DashboardCard frame() const;
    RingGauge gauge() const;
    std::array<MetricRow, 4> rows() const;
    QString loadAverageText() const;
};

/// Draws the card.
class CPUCardView : public DashboardCardView {
  public:
    explicit CPUCardView(const ProcessInfo& versions, QWidget* parent = nullptr);

    /// Shows the card unless it is the one shown already.
    void show(const CPUCard& card);

    /// Says in help texts what the figures mean.
    void explain(const FigureMeanings& meanings);

    /// The last revision shown.
    std::uint64_t revision() const { return revision_; }

    RingGaugeView& gauge() { return figures_->gauge(); }
    MetricRowView& row(std::size_t index) { return figures_->row(index); }
    TextLineView& loadAverage() { return *loadAverage_; }
    SparklineView& history() { return *history_; }
    CoreActivityView& cores() { return *cores_; }
    ProcessMiniListView& processes() { return *processes_; }

  private:
    /// What the header tells.
    struct Processor {
        std::string model;
        std::int64_t physicalCoreCount = 0;
        std::int64_t logicalCoreCount = 0;

        bool operator==(const Processor&) const = default;
    };

    void showProcessor(const CPUCard& card);

    GaugeAndRowsView* figures_ = nullptr;  // all owned by this widget, as its children
    TextLineView* loadAverage_ = nullptr;
    SparklineView* history_ = nullptr;
    CoreActivityView* cores_ = nullptr;
    ProcessMiniListView* processes_ = nullptr;
    std::optional<Processor> processor_;  // none while it waits
    std::uint64_t revision_ = 0;
    std::uint64_t processRevision_ = 0;
};

}  // namespace vantor

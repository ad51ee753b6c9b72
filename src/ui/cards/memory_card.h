#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "model/memory_stats.h"
#include "model/process_stats.h"
#include "platform/platform_words.h"
#include "platform/process_info.h"
#include "sampling/dashboard_state.h"
#include "ui/cards/gauge_and_rows.h"
#include "ui/cards/process_mini_list.h"
#include "ui/components/dashboard_card.h"
#include "ui/components/sparkline.h"

namespace vantor {

/// What the memory's card shows, borrowed from the published state. Two are equal when their
/// revisions are.
struct MemoryCard {
    const MemoryStats& stats;
    std::span<const double> history;
    std::span<const ProcessStats> processes;
    std::uint64_t revision = 0;
    std::uint64_t processRevision = 0;
    std::span<const double> historyTimes = {};

    static MemoryCard of(const DashboardState& state);

    bool operator==(const MemoryCard& other) const {
        return revision == other.revision && processRevision == other.processRevision;
    }

    bool isWaiting() const { return revision == 0; }

    DashboardCard frame() const;
    RingGauge gauge() const;
    std::array<MetricRow, 4> rows() const;
};

/// Draws the card.
class MemoryCardView : public DashboardCardView {
  public:
    explicit MemoryCardView(const ProcessInfo& versions, QWidget* parent = nullptr);

    /// Shows the card unless it is the one shown already.
    void show(const MemoryCard& card);

    /// Says in help texts what the figures mean.
    void explain(const FigureMeanings& meanings);

    GaugeAndRowsView& figures() { return *figures_; }
    SparklineView& history() { return *history_; }
    ProcessMiniListView& processes() { return *processes_; }

  private:
    GaugeAndRowsView* figures_ = nullptr;  // all owned by this widget, as its children
    SparklineView* history_ = nullptr;
    ProcessMiniListView* processes_ = nullptr;
    std::uint64_t revision_ = 0;
    std::uint64_t processRevision_ = 0;
};

}  // namespace vantor

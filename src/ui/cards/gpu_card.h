#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "model/gpu_stats.h"
#include "platform/platform_words.h"
#include "sampling/dashboard_state.h"
#include "ui/cards/gauge_and_rows.h"
#include "ui/cards/graphics_device_view.h"
#include "ui/components/dashboard_card.h"
#include "ui/components/empty_state_view.h"
#include "ui/components/sparkline.h"
#include "ui/components/text_line.h"

namespace vantor {

/// What the graphics card shows, borrowed from the published state. Two are equal when their
/// revisions are.
struct GPUCard {
    std::span<const GPUStats> gpus;
    std::span<const double> history;  ///< of the first device, which the gauge shows too
    std::uint64_t revision = 0;
    bool isWaiting = true;  ///< not read yet: whether there are any is unknown
    std::span<const double> historyTimes = {};

    static GPUCard of(const DashboardState& state);

    bool operator==(const GPUCard& other) const {
        return revision == other.revision && isWaiting == other.isWaiting;
    }

    /// Whether it has been read that there is none.
    bool isEmpty() const { return !isWaiting && gpus.empty(); }

    DashboardCard frame() const;
    RingGauge gauge() const;
    std::array<MetricRow, 3> rows() const;
    static EmptyState emptyState(const PlatformWords& words);
};

/// Draws the card.
class GPUCardView : public DashboardCardView {
  public:
    explicit GPUCardView(const PlatformWords& words, QWidget* parent = nullptr);

    /// Shows the card unless it is the one shown already.
    void show(const GPUCard& card);

    EmptyStateView& emptyState() { return *emptyState_; }
    GaugeAndRowsView& figures() { return *figures_; }
    SparklineView& history() { return *history_; }
    std::size_t deviceCount() const { return count_; }
    GraphicsDeviceView& device(std::size_t index) { return *devices_.at(index); }

  private:
    void showDevices(std::span<const GPUStats> gpus);

    const PlatformWords& words_;
    EmptyStateView* emptyState_ = nullptr;  // all owned by this widget, as its children
    QWidget* filled_ = nullptr;
    GaugeAndRowsView* figures_ = nullptr;
    SparklineView* history_ = nullptr;
    TextLineView* devicesTitle_ = nullptr;
    QVBoxLayout* list_ = nullptr;
    std::vector<GraphicsDeviceView*> devices_;  // the first ones are shown
    std::size_t count_ = 0;
    std::uint64_t revision_ = 0;
    bool isWaiting_ = true;
};

}  // namespace vantor

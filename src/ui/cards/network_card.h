#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "model/network_stats.h"
#include "sampling/dashboard_state.h"
#include "ui/components/dashboard_card.h"
#include "ui/components/labeled_sparkline.h"
#include "ui/components/metric_row.h"
#include "ui/components/speed_tile.h"

namespace vantor {

/// What the network's card shows, borrowed from the published state. Two are equal when their
/// revisions are.
struct NetworkCard {
    const NetworkStats& stats;
    std::span<const double> downloadHistory;
    std::span<const double> uploadHistory;
    std::uint64_t revision = 0;
    std::span<const double> historyTimes = {};

    static NetworkCard of(const DashboardState& state);

    bool operator==(const NetworkCard& other) const { return revision == other.revision; }

    bool isWaiting() const { return revision == 0; }

    DashboardCard frame() const;
    QString downloadText() const;
    QString uploadText() const;
    SpeedTile downloadTile() const;
    SpeedTile uploadTile() const;
    std::array<MetricRow, 4> rows() const;

    /// The addresses of all interfaces, one per line, as help text.
    QString interfacesHelp() const;
};

/// Draws the card.
class NetworkCardView : public DashboardCardView {
  public:
    explicit NetworkCardView(QWidget* parent = nullptr);

    /// Shows the card unless it is the one shown already.
    void show(const NetworkCard& card);

    SpeedTileView& downloadTile() { return *downloadTile_; }
    SpeedTileView& uploadTile() { return *uploadTile_; }
    LabeledSparklineView& downloadHistory() { return *downloadHistory_; }
    LabeledSparklineView& uploadHistory() { return *uploadHistory_; }
    MetricRowView& row(std::size_t index) { return *rows_.at(index); }

  private:
    SpeedTileView* downloadTile_ = nullptr;  // all owned by this widget, as its children
    SpeedTileView* uploadTile_ = nullptr;
    LabeledSparklineView* downloadHistory_ = nullptr;
    LabeledSparklineView* uploadHistory_ = nullptr;
    std::array<MetricRowView*, 4> rows_{};
    std::uint64_t revision_ = 0;
};

}  // namespace vantor

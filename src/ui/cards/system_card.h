#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "model/power_stats.h"
#include "model/system_info_stats.h"
#include "platform/platform_words.h"
#include "platform/process_info.h"
#include "sampling/dashboard_state.h"
#include "ui/cards/power_view.h"
#include "ui/components/dashboard_card.h"
#include "ui/components/metric_row.h"
#include "ui/theme.h"

namespace vantor {

/// What the system's card shows, borrowed from the published state. Two are equal when their
/// revisions are.
struct SystemCard {
    const SystemInfoStats& stats;
    const std::optional<PowerStats>& power;
    std::uint64_t revision = 0;

    static SystemCard of(const DashboardState& state);

    bool operator==(const SystemCard& other) const { return revision == other.revision; }

    bool isWaiting() const { return revision == 0; }

    DashboardCard frame() const;
    std::array<MetricRow, 6> rows() const;

    /// Green, orange, red; the secondary label's where nothing is known.
    static QColor thermalColor(const std::string& state, ColorScheme scheme);
};

/// Draws the card.
class SystemCardView : public DashboardCardView {
  public:
    explicit SystemCardView(const ProcessInfo& versions, QWidget* parent = nullptr);

    /// Shows the card unless it is the one shown already.
    void show(const SystemCard& card);

    /// Says in help texts what the figures mean.
    void explain(const FigureMeanings& meanings);

    MetricRowView& row(std::size_t index) { return *rows_.at(index); }
    PowerView& power() { return *power_; }

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void colorThermalState();

    const ProcessInfo& versions_;
    std::array<MetricRowView*, 6> rows_{};  // all owned by this widget, as its children
    PowerView* power_ = nullptr;
    std::string thermalState_;
    std::uint64_t revision_ = 0;
};

}  // namespace vantor

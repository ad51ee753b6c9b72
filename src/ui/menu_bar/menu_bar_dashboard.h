#pragma once

#include <QString>

#include "sampling/dashboard_state.h"
#include "ui/components/speed_tile.h"
#include "ui/menu_bar/menu_metric.h"

namespace vantor {

/// What the panel at the menu bar shows. A section that has not been read yet has "—" for a figure
/// and an empty bar.
struct MenuBarDashboard {
    enum class Status {
        waiting,  ///< nothing has been read yet
        live,
        paused
    };

    Status status = Status::waiting;
    MenuMetric cpu;
    MenuMetric memory;
    SpeedTile download;
    SpeedTile upload;

    static MenuBarDashboard of(const DashboardState& state, bool isPaused);

    bool operator==(const MenuBarDashboard&) const = default;

    QString statusText() const;
    QColor statusColor() const;  ///< transparent while waiting: nothing is good or bad yet
    QString pauseTitle() const;
    QString pauseSymbol() const;
};

}  // namespace vantor

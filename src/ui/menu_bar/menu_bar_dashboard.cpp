#include "ui/menu_bar/menu_bar_dashboard.h"

#include <limits>

#include "ui/cards/cpu_card.h"
#include "ui/cards/memory_card.h"
#include "ui/cards/network_card.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/theme.h"
#include "ui/translate.h"

namespace vantor {

namespace {

template <class Card>
MenuMetric metric(const Card& card, const QString& title) {
    const RingGauge gauge = card.gauge();
    const double fraction =
        card.isWaiting() ? std::numeric_limits<double>::quiet_NaN() : gauge.value;
    return {title, gauge.title, fraction, gauge.accent};
}

DashboardHeader headerOf(MenuBarDashboard::Status status) {
    DashboardHeader header;
    header.isPaused = status == MenuBarDashboard::Status::paused;
    return header;
}

}  // namespace

MenuBarDashboard MenuBarDashboard::of(const DashboardState& state, bool isPaused) {
    const auto network = NetworkCard::of(state);
    const bool isWaiting = state.snapshot.timestamp == SystemSnapshot::empty().timestamp;
    const Status running = isWaiting ? Status::waiting : Status::live;
    return {isPaused ? Status::paused : running,
            metric(CPUCard::of(state),
                   //: the short title of a figure
                   translate("MenuBarDashboard", "CPU")),
            metric(MemoryCard::of(state),
                   //: the short title of a figure
                   translate("MenuBarDashboard", "Memory")),
            network.downloadTile(), network.uploadTile()};
}

QString MenuBarDashboard::statusText() const {
    // As in the dashboard's footer.
    if (status == Status::waiting) return translate("MenuBarDashboard", "Collecting live data…");
    return headerOf(status).statusText();
}

QColor MenuBarDashboard::statusColor() const {
    switch (status) {
        case Status::live:
            return VantorTheme::green();
        case Status::paused:
            return VantorTheme::orange();
        case Status::waiting:
            break;
    }
    return Qt::transparent;
}

QString MenuBarDashboard::pauseTitle() const {
    return headerOf(status).pauseTitle();
}

QString MenuBarDashboard::pauseSymbol() const {
    return headerOf(status).pauseSymbol();
}

}  // namespace vantor

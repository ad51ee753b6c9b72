#include "ui/dashboard/dashboard_header.h"

#include <QVBoxLayout>

#include <cmath>

#include "ui/components/make_child.h"
#include "ui/dashboard/flow_layout.h"
#include "ui/dashboard/horizontal_fit.h"
#include "ui/formatters.h"
#include "ui/theme.h"
#include "ui/translate.h"

namespace vantor {

namespace {

constexpr int dashboardHeaderPadding = 16;
constexpr int dashboardHeaderControlSpacing = 8;
constexpr int minGap = 24;
constexpr int stackedSpacing = 14;

}  // namespace

QString DashboardHeader::statusText() const {
    return isPaused
               ? /*: the state: the figures stand still */ translate("DashboardHeader", "Paused")
               : /*: the state: the figures follow the machine */ translate("DashboardHeader",
                                                                            "Live");
}

QString DashboardHeader::pauseTitle() const {
    return isPaused ? /*: a button: go on reading */ translate("DashboardHeader", "Resume")
                    : /*: a button: stop reading */ translate("DashboardHeader", "Pause");
}

QString DashboardHeader::pauseSymbol() const {
    return isPaused ? QStringLiteral("play.fill") : QStringLiteral("pause.fill");
}

QString DashboardHeader::intervalText(double seconds) {
    // A setting can hold any number until the next load repairs it; it is used as 0.5 to 10.
    const bool isShowable = std::isfinite(seconds) && std::abs(seconds) < 1e5;
    const auto whole = static_cast<double>(isShowable ? std::llround(seconds) : 1);
    return
        //: a number of seconds, short
        translate("DashboardHeader", "%1 s")
            .arg(Formatters::number(seconds == 0.5 ? seconds : whole));
}

DashboardHeaderView::DashboardHeaderView(DashboardHeader header, std::string_view subtitle,
                                         std::optional<double> legacyBreakpoint, QWidget* parent)
    : CardFrame(parent), header_(std::move(header)) {
    auto* layout = makeLayout<QVBoxLayout>(this);
    layout->setContentsMargins(dashboardHeaderPadding, dashboardHeaderPadding,
                               dashboardHeaderPadding, dashboardHeaderPadding);
    auto* identity = makeChild<IdentityView>(this, subtitle);
    fit_ = makeChild<VantorHorizontalFit>(this, identity, makeControls(), minGap, stackedSpacing,
                                          legacyBreakpoint);
    layout->addWidget(fit_);
    show(header_.refreshInterval, header_.isPaused);
}

QWidget* DashboardHeaderView::makeControls() {
    auto* controls = makeChild<QWidget>(this);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    controls->setSizePolicy(policy);
    auto* flow = std::make_unique<FlowLayout>(dashboardHeaderControlSpacing, controls).release();
    status_ = makeChild<StatusPillView>(controls);
    flow->addWidget(status_);
    interval_ = makeChild<IntervalMenuView>(controls, header_.onRefreshIntervalChange);
    flow->addWidget(interval_);
    const std::array buttons{
        CapsuleButton{header_.pauseTitle(), header_.pauseSymbol(), header_.onTogglePause},
        CapsuleButton{//: a button: read everything now
                      translate("DashboardHeader", "Refresh"), QStringLiteral("arrow.clockwise"),
                      header_.onRefresh},
        CapsuleButton{//: a button: save a snapshot to a file
                      translate("DashboardHeader", "Export"), QStringLiteral("square.and.arrow.up"),
                      header_.onExport},
        CapsuleButton{
            //: a button: end the program
            translate("DashboardHeader", "Quit"), QStringLiteral("power"), header_.onQuit}};
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        buttons_[i] = makeChild<CapsuleButtonView>(controls, buttons[i]);
        flow->addWidget(buttons_[i]);
    }
    pauseButton().reserveWidthFor(
        //: a button: go on reading
        translate("DashboardHeader", "Resume"));
    exportButton().setEnabled(header_.onExport != nullptr);
    return controls;
}

void DashboardHeaderView::show(double refreshInterval, bool isPaused) {
    header_.refreshInterval = refreshInterval;
    header_.isPaused = isPaused;
    status_->show(isPaused);
    interval_->show(refreshInterval);
    pauseButton().show(header_.pauseTitle(), header_.pauseSymbol());
}

QColor DashboardHeaderView::borderColor() const {
    return VantorTheme::line(colorScheme(*this), 0.08);
}

}  // namespace vantor

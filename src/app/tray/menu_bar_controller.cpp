#include "app/tray/menu_bar_controller.h"

#include <QStringList>

#include "ui/menu_bar/menu_bar_dashboard.h"
#include "ui/translate.h"

namespace vantor {

MenuBarController::MenuBarController(std::shared_ptr<StatusBar> statusBar, Actions actions,
                                     MakeContent makeContent)
    : statusBar_(std::move(statusBar)),
      actions_(std::move(actions)),
      makeContent_(std::move(makeContent)) {}

MenuBarController::~MenuBarController() = default;

void MenuBarController::configure(std::shared_ptr<AppSettings> settings,
                                  std::shared_ptr<SystemMonitor> monitor) {
    if (settings == settings_ && monitor == monitor_) return;
    settings_ = std::move(settings);
    monitor_ = std::move(monitor);
    const auto follow = [this](const bool& isShown) {
        if (isShown) {
            installStatusItem();
        } else {
            removeStatusItem();
        }
    };
    settingObservation_ = settings_->showMenuBarStream().observe(follow);
    follow(settings_->showMenuBar());
}

void MenuBarController::installStatusItem() {
    if (item_) return;
    item_ = statusBar_->makeItem({QStringLiteral("Vantor"), QStringLiteral("waveform.path.ecg"),
                                  [this](QRect area) { togglePopover(area); },
                                  [this] { return menu(); }, [this] { return toolTip(); }});
    followFigures();
}

void MenuBarController::followFigures() {
    const auto tell = [this](const Timestamp& moment) {
        const auto since = moment - toldFigures_;
        // A clock that was set back must not stop it.
        if (since >= Timestamp::duration::zero() && since < toolTipInterval) return;
        toldFigures_ = moment;
        item_->toolTipChanged();
    };
    figuresObservation_ = monitor_->dashboardStateStream().observe(
        [tell](const DashboardState& state) { tell(state.snapshot.timestamp); });
}

QString MenuBarController::toolTip() const {
    const auto now = MenuBarDashboard::of(monitor_->dashboardState(), monitor_->isPaused());
    const auto figure = [](const QString& title, const QString& value) {
        return title + u' ' + value;
    };
    return listed({figure(now.cpu.title, now.cpu.value), figure(now.memory.title, now.memory.value),
                   figure(now.download.title, now.download.value),
                   figure(now.upload.title, now.upload.value)});
}

void MenuBarController::removeStatusItem() {
    popover_.reset();
    figuresObservation_.cancel();
    item_.reset();
}

void MenuBarController::togglePopover(const QRect& anchor) {
    if (popover_ && (popover_->isVisible() || popover_->hasJustClosed())) {
        popover_->close();
        return;
    }
    if (!popover_) popover_ = std::make_unique<PopoverWindow>(makeContent_());
    popover_->open(anchor);
}

void MenuBarController::closePopover() {
    if (popover_) popover_->close();
}

std::vector<StatusMenuEntry> MenuBarController::menu() const {
    const bool isPaused = monitor_->isPaused();
    const auto now = MenuBarDashboard::of(monitor_->dashboardState(), isPaused);
    const auto figure = [](const QString& title, const QString& value) {
        return StatusMenuEntry{title + QStringLiteral("  ") + value, {}};
    };
    return {figure(now.cpu.title, now.cpu.value),
            figure(now.memory.title, now.memory.value),
            figure(now.download.title, now.download.value),
            figure(now.upload.title, now.upload.value),
            {},
            {//: a button
             translate("MenuBarDashboard", "Open Dashboard"), actions_.openDashboard},
            {now.pauseTitle(), [monitor = monitor_] { monitor->togglePause(); }},
            {//: a button: read everything now
             translate("MenuBarDashboard", "Refresh"),
             [monitor = monitor_] { monitor->forceRefresh(); }},
            {//: opens the settings
             translate("MenuBarDashboard", "Settings…"), actions_.openSettings},
            {},
            {//: a button: end the program
             translate("MenuBarDashboard", "Quit"), actions_.quit}};
}

}  // namespace vantor

#pragma once

#include <QRect>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "app/tray/popover_window.h"
#include "app/tray/status_bar.h"
#include "sampling/system_monitor.h"
#include "settings/app_settings.h"

namespace vantor {

/// The status item, which is there while the setting `showMenuBar` is on, and its popover. Main
/// thread.
class MenuBarController {
  public:
    struct Actions {
        std::function<void()> openDashboard;
        std::function<void()> openSettings;
        std::function<void()> quit;
    };
    using MakeContent = std::function<std::unique_ptr<QWidget>()>;

    /// `makeContent` makes the popover's content when it is first opened.
    MenuBarController(std::shared_ptr<StatusBar> statusBar, Actions actions,
                      MakeContent makeContent);
    MenuBarController(const MenuBarController&) = delete;
    MenuBarController& operator=(const MenuBarController&) = delete;
    ~MenuBarController();

    /// Keeps both and follows the setting from now on.
    void configure(std::shared_ptr<AppSettings> settings, std::shared_ptr<SystemMonitor> monitor);

    void installStatusItem();
    /// Closes the popover, drops its content, and takes the item away.
    void removeStatusItem();
    void togglePopover(const QRect& anchor);
    void closePopover();

    bool hasStatusItem() const { return item_ != nullptr; }
    PopoverWindow* popover() { return popover_.get(); }

    /// The entries of the item's plain menu, for desktops that show nothing else.
    std::vector<StatusMenuEntry> menu() const;

    /// The figures, as the item's tool tip says them.
    QString toolTip() const;

    /// No desktop is told more often that the tool tip has changed: each time, it may read all of
    /// the item, its pictures included.
    static constexpr std::chrono::seconds toolTipInterval{5};

  private:
    void followFigures();

    std::shared_ptr<StatusBar> statusBar_;
    Actions actions_;
    MakeContent makeContent_;
    std::shared_ptr<AppSettings> settings_;
    std::shared_ptr<SystemMonitor> monitor_;
    Subscription settingObservation_;
    Subscription figuresObservation_;
    Timestamp toldFigures_{};  ///< when the item was told of the last ones
    std::unique_ptr<StatusItem> item_;
    std::unique_ptr<PopoverWindow> popover_;
};

}  // namespace vantor

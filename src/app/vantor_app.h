#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

#include "app/app_commands.h"
#include "app/app_delegate.h"
#include "app/appearance/desktop_appearance.h"
#include "app/build_info.h"
#include "app/desktop.h"
#include "app/session/app_action.h"
#include "app/tray/menu_bar_controller.h"
#include "app/tray/status_bar.h"
#include "app/window/content_window.h"
#include "app/window/dashboard_window.h"
#include "app/window/dock_reopen.h"
#include "app/window/vantor_help_window.h"
#include "app/window/window_geometry.h"
#include "platform/confinement.h"
#include "platform/export_platform.h"
#include "platform/machine.h"
#include "platform/main_loop.h"
#include "platform/serial_queue.h"
#include "sampling/system_monitor.h"
#include "settings/app_settings.h"
#include "settings/defaults_file.h"
#include "settings/login_item.h"
#include "ui/app_metadata.h"
#include "ui/menu_bar/menu_bar_dashboard_view.h"

namespace vantor {

/// How long a program without any window waits for a missing tray.
struct TrayPatience {
    /// From the start on. On a slow disk, a program that starts with the session is up half a
    /// minute before the desktop's panel. A user who closes the window meanwhile wants it in the
    /// tray; but where none comes, the program has to end, as nothing would lead back to it.
    std::chrono::milliseconds atStart = std::chrono::minutes(1);
    /// After a tray was lost: a desktop's panel that restarts is back by then.
    std::chrono::milliseconds afterLoss = std::chrono::seconds(5);
};

/// Puts the whole program together and owns it; its two variants differ in how the dashboard's
/// window and the menu bar item come to be. Needs the toolkit's application object; main thread.
class VantorApp : public QObject {
  public:
    struct Environment {
        std::shared_ptr<Machine> machine;
        QString settingsFile;  ///< of the user's preferences
        std::shared_ptr<StatusBar> statusBar;
        std::function<void()> quit;
        ExportPlatform exportPlatform{};  ///< without one, Export does nothing
        DesktopTraits desktop{};
        TrayPatience trayPatience{};
        std::shared_ptr<const Confinement> confinement{};  ///< of this process, if there is any
        std::shared_ptr<DesktopAppearance> appearance{};   ///< none: the toolkit's palette
        QString autostartFile{};  ///< empty: opening at login is not offered
    };

    VantorApp(const VantorApp&) = delete;
    VantorApp& operator=(const VantorApp&) = delete;
    ~VantorApp() override;

    /// Shows the dashboard's window, or brings it forward.
    virtual void openDashboard() = 0;
    virtual DashboardWindow* dashboardWindow() = 0;

    void openSettings(const QString& activationToken = {});
    void openHelp();
    void openAbout();

    /// The program's start for `action`: with the dashboard, or in the background without any
    /// window, where something can lead back to it.
    void begin(AppAction action);

    /// What the user asks for from outside. Figures are paused and refreshed where the program is,
    /// and what needs a window comes forward.
    void perform(const Activation& activation);

    /// The user started the program again, or clicked its icon; the token lets it come forward.
    void reopen(const QString& activationToken);

    /// Writes what is worth keeping, for a session that is about to end.
    void saveState();

    SystemMonitor& monitor() { return *monitor_; }
    AppSettings& settings() { return *settings_; }
    MenuBarController& menuBar() { return *menuBar_; }
    ContentWindow* settingsWindow() { return settingsWindow_.get(); }
    ContentWindow* helpWindow() { return help_.window(); }
    AppCommands& commands() { return commands_; }

    /// Ends everything without waiting for any probe. A snapshot and preferences that are being
    /// written get up to three seconds together to be complete; after that, the old files stay.
    /// Returns false when a probe or a write is still running after `patience`: the program must
    /// then leave without cleaning up.
    virtual bool shutDown(std::chrono::milliseconds patience);

  protected:
    explicit VantorApp(Environment environment);

    /// Called by each variant once it is made.
    void adoptMenuBar(std::unique_ptr<MenuBarController> menuBar);
    MenuBarController::Actions menuBarActions();
    const std::shared_ptr<StatusBar>& statusBar() const { return statusBar_; }
    const std::shared_ptr<AppSettings>& sharedSettings() const { return settings_; }
    const std::shared_ptr<SystemMonitor>& sharedMonitor() const { return monitor_; }
    const ProcessInfo& versions() const { return machine_->processInfo(); }
    std::unique_ptr<DashboardWindow> makeDashboardWindow(const QString& identifier);
    void closePopover() {
        if (menuBar_) menuBar_->closePopover();
    }
    /// To be called before the dashboard's window is destroyed.
    void keepWindowGeometry() { geometry_.reset(); }
    MenuBarDashboardView::Environment panelEnvironment() const;

  private:
    bool hasVisibleWindow() const;
    void lastWindowClosed();
    void statusBarChanged();
    void beginInBackground();
    void takeUpLateSettings();
    void scheduleSettling();
    void hideInTray();
    void finishWriting();
    void waitForTray(std::chrono::milliseconds patience);

    std::shared_ptr<Machine> machine_;
    std::shared_ptr<MainLoop> mainLoop_;
    std::shared_ptr<BackgroundQueueFactory> queues_;
    std::shared_ptr<DefaultsFile> defaults_;
    std::shared_ptr<DefaultsFile> frames_;  // of windows
    std::shared_ptr<AppSettings> settings_;
    std::shared_ptr<LoginItem> loginItem_;  // null where that is not offered
    std::shared_ptr<SystemMonitor> monitor_;
    std::shared_ptr<StatusBar> statusBar_;
    const std::shared_ptr<Published<bool>> hasTray_;
    TrayPatience trayPatience_;
    std::shared_ptr<const Confinement> confinement_;
    std::function<void()> quit_;
    BuildInfo buildInfo_;
    AppMetadata metadata_;
    AppDelegate delegate_;
    VantorHelpWindow help_;
    AppCommands commands_;
    std::unique_ptr<MenuBarController> menuBar_;
    std::unique_ptr<WindowGeometry> geometry_;  // of the dashboard's window
    std::unique_ptr<ContentWindow> settingsWindow_;
    QPointer<QMessageBox> about_;            // while it is open
    std::shared_ptr<MainTask> wayBackTask_;  // while a tray is waited for
    bool hasClosedWithoutTray_ = false;
    std::unique_ptr<DockReopen> dockReopen_;  // where there is a dock
};

/// The variant that suits the machine's system.
std::unique_ptr<VantorApp> makeVantorApp(VantorApp::Environment environment);

}  // namespace vantor

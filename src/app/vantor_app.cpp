#include "app/vantor_app.h"

#include <QApplication>

#include <algorithm>

#include "app/files/autostart.h"
#include "app/files/user_defaults.h"
#include "app/legacy_vantor_app.h"
#include "app/modern_vantor_app.h"
#include "app/qt_application_appearance.h"
#include "app/qt_main_loop.h"
#include "app/session/termination_signals.h"
#include "app/window/about_panel.h"
#include "app/window/window_activation.h"
#include "platform/native_machine.h"
#include "ui/settings/settings_view.h"
#include "ui/translate.h"

namespace vantor {

namespace {

using namespace std::chrono_literals;

// All providers have answered once by then, and the start's memory is free.
constexpr auto settlingTime = 4s;
// A document is written in milliseconds; a slow stick takes a second or two to store it. A disk
// that takes longer may hang, and a session that ends waits no longer for a program either. The
// windows are gone by then, so none of them freezes.
constexpr auto writePatience = DefaultsFile::endPatience;

std::shared_ptr<AppSettings> loadSettings(const std::shared_ptr<DefaultsFile>& defaults,
                                          std::shared_ptr<DesktopAppearance> desktop) {
    defaults->waitForRead();
    return std::make_shared<AppSettings>(
        defaults, std::make_shared<QtApplicationAppearance>(std::move(desktop)));
}

}  // namespace

VantorApp::VantorApp(Environment environment)
    : machine_(std::move(environment.machine)),
      mainLoop_(std::make_shared<QtMainLoop>()),
      queues_(makeNativeQueueFactory([] { TerminationSignals::keepFromThisThread(); })),
      defaults_(openDefaults(environment.settingsFile, mainLoop_, queues_,
                             "com.kestrone.Vantor.settings")),
      frames_(openDefaults(WindowGeometry::fileBeside(environment.settingsFile), mainLoop_, queues_,
                           "com.kestrone.Vantor.windows")),
      settings_(loadSettings(defaults_, std::move(environment.appearance))),
      loginItem_(openLoginItem(environment.autostartFile, mainLoop_, queues_)),
      monitor_(SystemMonitor::make(settings_, machine_, mainLoop_, queues_,
                                   std::move(environment.exportPlatform))),
      statusBar_(std::move(environment.statusBar)),
      hasTray_(std::make_shared<Published<bool>>(statusBar_->isAvailable())),
      trayPatience_(environment.trayPatience),
      confinement_(std::move(environment.confinement)),
      quit_(std::move(environment.quit)),
      metadata_(buildInfo_),
      delegate_(defaults_, machine_->processInfo(), [this] { openDashboard(); }),
      help_(machine_, [this](QWidget& window) { commands_.addTo(&window); }),
      commands_({[this] { openAbout(); },
                 [this] {
                     if (monitor_) monitor_->forceRefresh();
                 },
                 [this] { monitor_->exportSnapshot(); }, [this] { openSettings(); },
                 [this] { openHelp(); }, quit_},
                environment.desktop.hasOneMenuBar) {
    defaults_->setOnLateRead([this] { takeUpLateSettings(); });
    // Read too late, they are for the next start: a window that the user looks at stays in place.
    frames_->waitForRead();
    // Whether the last window ends the program is asked each time.
    QApplication::setQuitOnLastWindowClosed(false);
    connect(qApp, &QGuiApplication::lastWindowClosed, this, [this] { lastWindowClosed(); });
    statusBar_->listen([this] { statusBarChanged(); });
    if (!statusBar_->isAvailable()) waitForTray(trayPatience_.atStart);
    if (environment.desktop.reopensByActivation)
        dockReopen_ = std::make_unique<DockReopen>([this] { reopen({}); });
}

VantorApp::~VantorApp() {
    VantorApp::shutDown(0ms);
}

MenuBarController::Actions VantorApp::menuBarActions() {
    return {[this] { openDashboard(); }, [this] { openSettings(); }, quit_};
}

MenuBarDashboardView::Environment VantorApp::panelEnvironment() const {
    return {monitor_, quit_};
}

void VantorApp::adoptMenuBar(std::unique_ptr<MenuBarController> menuBar) {
    menuBar_ = std::move(menuBar);
}

std::unique_ptr<DashboardWindow> VantorApp::makeDashboardWindow(const QString& identifier) {
    const auto onFirstLiveFrame = [this] {
        // The name that a minimised window goes by: from the first live figures on, the plain
        // one. Scripts and tests can watch it from outside.
        if (DashboardWindow* const window = dashboardWindow())
            window->setWindowIconText(QStringLiteral("Vantor"));
        scheduleSettling();
    };
    auto window = std::make_unique<DashboardWindow>(
        DashboardView::Environment{settings_, monitor_, machine_, mainLoop_, metadata_,
                                   AdaptiveColumns{}, quit_, onFirstLiveFrame},
        commands_, [this](bool isActive) { monitor_->setDashboardLiveResizeActive(isActive); });
    window->setObjectName(identifier);
    geometry_ =
        std::make_unique<WindowGeometry>(*window, identifier.toStdString(), frames_, mainLoop_);
    window->setWindowIconText(
        //: the name of the window until figures have been read
        translate("VantorApp", "Vantor (collecting live data)"));
    return window;
}

void VantorApp::scheduleSettling() {
    mainLoop_->runAfter(settlingTime, [] { giveBackUnusedMemory(); });
}

/// Preferences that are read late take effect late, except for those that the user has changed by
/// then: otherwise windows would show other values than the stored ones.
void VantorApp::takeUpLateSettings() {
    settings_->takeUpStored();
    // A program that began in the background may have to do without its tray item after all.
    if (menuBar_ && !menuBar_->hasStatusItem() && !hasVisibleWindow()) openDashboard();
}

void VantorApp::openSettings(const QString& activationToken) {
    if (!monitor_) return;
    if (!settingsWindow_) {
        auto view = std::make_unique<SettingsView>(SettingsView::Environment{
            settings_, machine_, metadata_, [this] { monitor_->exportSnapshot(); },
            std::shared_ptr<Published<std::string>>(defaults_, &defaults_->notSaved()), loginItem_,
            hasTray_});
        settingsWindow_ = std::make_unique<ContentWindow>(
            //: the title of a window
            translate("VantorApp", "Vantor Settings"), std::move(view));
        commands_.addTo(settingsWindow_.get());
    }
    settingsWindow_->open(activationToken);
}

void VantorApp::openHelp() {
    if (monitor_) help_.show();
}

void VantorApp::openAbout() {
    if (about_) {
        bringToFront(*about_, {});
        return;
    }
    QWidget* owner = QApplication::activeWindow();
    if (!owner) owner = dashboardWindow();
    about_ = showVantorAboutPanel(metadata_,
                                  confinement_ ? confinement_->state() : ConfinementState{}, owner);
}

void VantorApp::reopen(const QString& activationToken) {
    if (delegate_.applicationShouldHandleReopen(hasVisibleWindow())) openDashboard();
    if (DashboardWindow* const window = dashboardWindow()) bringToFront(*window, activationToken);
}

void VantorApp::saveState() {
    if (geometry_) geometry_->save();
}

bool VantorApp::hasVisibleWindow() const {
    const auto windows = QApplication::topLevelWidgets();
    return std::ranges::any_of(windows, [](const QWidget* window) {
        return window->isVisible() && window->windowType() == Qt::Window;
    });
}

/// The user must always have a way back to a program that runs.
void VantorApp::lastWindowClosed() {
    const bool isItemThere = menuBar_ && menuBar_->hasStatusItem();
    if (!isItemThere || delegate_.applicationShouldTerminateAfterLastWindowClosed()) {
        quit_();
    } else if (!statusBar_->isAvailable()) {
        // While one may still come, or come back, nothing is decided yet.
        hasClosedWithoutTray_ = true;
        if (!wayBackTask_) quit_();
    }
}

/// A tray has come, vanished, or come back. Without a window the program stays hidden only if the
/// tray returns.
void VantorApp::statusBarChanged() {
    cancelTask(wayBackTask_);
    hasClosedWithoutTray_ = false;
    hasTray_->set(statusBar_->isAvailable());
    if (!statusBar_->isAvailable()) waitForTray(trayPatience_.afterLoss);
}

void VantorApp::waitForTray(std::chrono::milliseconds patience) {
    wayBackTask_ = std::make_shared<MainTask>(mainLoop_);
    wayBackTask_->sleep(patience, [this] {
        wayBackTask_ = nullptr;
        if (statusBar_->isAvailable() || hasVisibleWindow()) return;
        if (hasClosedWithoutTray_) {
            quit_();
        } else {
            openDashboard();
        }
    });
}

void VantorApp::finishWriting() {
    using std::chrono::steady_clock;
    const auto end = steady_clock::now() + writePatience;
    defaults_->setOnLateRead({});
    for (const auto& file : {defaults_, frames_})
        file->tryAgain();
    monitor_->waitForExport(writePatience);
    for (const auto& file : {defaults_, frames_}) {
        const auto left = end - steady_clock::now();
        file->waitForWrite(std::chrono::duration_cast<std::chrono::milliseconds>(left));
    }
}

bool VantorApp::shutDown(std::chrono::milliseconds patience) {
    cancelTask(wayBackTask_);
    statusBar_->listen({});
    dockReopen_.reset();
    disconnect(qApp, nullptr, this, nullptr);
    menuBar_.reset();
    settingsWindow_.reset();
    help_.release();
    if (monitor_) finishWriting();
    monitor_.reset();
    return queues_->waitForThreads(patience);
}

std::unique_ptr<VantorApp> makeVantorApp(VantorApp::Environment environment) {
    if (environment.machine->processInfo().isOperatingSystemAtLeast(13, 0, 0))
        return std::make_unique<ModernVantorApp>(std::move(environment));
    return std::make_unique<LegacyVantorApp>(std::move(environment));
}

}  // namespace vantor

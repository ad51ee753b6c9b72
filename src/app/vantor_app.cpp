#include "app/vantor_app.h"

#include <QApplication>
#include <QStyleFactory>

#include <cstdlib>

#include "app/qt_application_appearance.h"
#include "app/qt_defaults_store.h"
#include "app/qt_main_loop.h"
#include "platform/native_machine.h"
#include "ui/components/accessible_views.h"

namespace vantor {

namespace {

// Long enough for any probe that works, and well within what people take for "at once".
constexpr std::chrono::milliseconds quitPatience{250};

}  // namespace

VantorApp::VantorApp(std::shared_ptr<Machine> machine, const QString& settingsFile)
    : machine_(std::move(machine)),
      mainLoop_(std::make_shared<QtMainLoop>()),
      queues_(std::make_shared<ThreadedSerialQueueFactory>(assumeUtilityRole)),
      settings_(std::make_shared<AppSettings>(std::make_shared<QtDefaultsStore>(settingsFile),
                                              std::make_shared<QtApplicationAppearance>())),
      monitor_(SystemMonitor::make(settings_, machine_, mainLoop_, queues_)),
      metadata_(buildInfo_) {}

VantorApp::~VantorApp() {
    shutDown(std::chrono::milliseconds::zero());
}

void VantorApp::openDashboard() {
    if (!window_) {
        const auto onFirstLiveFrame = [this] {
            // The name that a minimised window goes by: from the first live figures on, the plain
            // one. Whoever waits for them from outside can watch it.
            window_->setWindowIconText(QStringLiteral("Vantor"));
        };
        window_ = std::make_unique<DashboardWindow>(DashboardView::Environment{
            settings_, monitor_, machine_, mainLoop_, metadata_, AdaptiveColumns{},
            [] { QApplication::quit(); }, onFirstLiveFrame});
        window_->setWindowIconText(QStringLiteral("Vantor (collecting live data)"));
    }
    window_->show();
}

bool VantorApp::shutDown(std::chrono::milliseconds patience) {
    window_.reset();
    monitor_.reset();
    return queues_->waitForThreads(patience);
}

int runVantor(int argc, char** argv, const std::shared_ptr<Machine>& machine) {
    // One look everywhere: the desktop's own style knows nothing of our two schemes.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vantor"));
    QApplication::setApplicationDisplayName(QStringLiteral("Vantor"));
    QApplication::setApplicationVersion(QStringLiteral(VANTOR_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("vantor"));
    installViewAccessibility();

    VantorApp vantor(machine, QtDefaultsStore::userFile());
    vantor.openDashboard();
    const int status = QApplication::exec();
    // A probe that hangs in the kernel cannot be joined, and tearing the process down around it
    // would pull the ground from under its feet.
    if (!vantor.shutDown(quitPatience)) std::_Exit(status);
    return status;
}

}  // namespace vantor

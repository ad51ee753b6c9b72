#include "app/run_vantor.h"

#include <QApplication>
#include <QLocale>
#include <QtGlobal>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

#include "app/appearance/native_desktop_appearance.h"
#include "app/desktop.h"
#include "app/files/autostart.h"
#include "app/files/qt_export_platform.h"
#include "app/files/user_defaults.h"
#include "app/session/command_line.h"
#include "app/session/instance_claim.h"
#include "app/session/quit_watch.h"
#include "app/session/safe_environment.h"
#include "app/session/scarcity.h"
#include "app/session/session_end.h"
#include "app/session/single_instance.h"
#include "app/session/termination_signals.h"
#include "app/user_language.h"
#include "app/vantor_app.h"
#include "app/window/window_activation.h"
#include "platform/posix/end_watchdog.h"
#include "ui/components/accessible_views.h"
#include "ui/vantor_style.h"

namespace vantor {

namespace {

// Long enough for any probe that works, and short enough to feel immediate.
constexpr std::chrono::milliseconds quitPatience{250};

void sayThatThereIsNoDisplay() {
    std::fputs("vantor: no display could be opened; please start it from a desktop session.\n",
               stderr);
}

/// The toolkit aborts where it finds no display: that is no crash to be reported, but an error
/// message.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg) {
        sayThatThereIsNoDisplay();
        std::_Exit(EXIT_FAILURE);
    }
    if (type == QtCriticalMsg) endWhereToolkitGivesUp(type, context, message);
}

/// Prints what it is to print; the exit status where there is nothing else to do.
std::optional<int> statusWithoutRunning(const CommandLine& line) {
    if (line.kind == CommandLine::Kind::run) return std::nullopt;
    const bool isMistake = line.kind == CommandLine::Kind::mistake;
    std::fputs(line.text.c_str(), isMistake ? stderr : stdout);
    return isMistake ? CommandLine::mistakeStatus : EXIT_SUCCESS;
}

}  // namespace

int runVantor(int argc, char** argv, const std::shared_ptr<Machine>& machine,
              const std::shared_ptr<Confinement>& confinement) {
    // First of all: the answer needs neither a display nor a disk.
    const auto line = CommandLine::of({argv + std::min(argc, 1), argv + argc});
    if (const auto status = statusWithoutRunning(line)) return *status;
    // They keep their place, also where that does not answer: nothing waits for them.
    const QString settingsFile = userSettingsFile();
    const DesktopTraits desktop = nativeDesktopTraits();
    const QString autostartFile = desktop.opensByAutostartEntries ? userAutostartFile() : QString();
    makeEnvironmentSafe();
    if (isLocalDisplayMissing()) {
        sayThatThereIsNoDisplay();
        return EXIT_FAILURE;
    }
    // One look everywhere: the desktop's own style knows nothing of our two schemes.
    QApplication::setStyle(std::make_unique<VantorStyle>().release());  // takes ownership
    const QString activationToken = activationTokenOfEnvironment();
    // The toolkit's own arguments would change the look, and some have it run code of others.
    int ownArguments = std::min(argc, 1);
    endInASentenceWhenItCannotGoOn();
    EndWatchdog watchdog;  // first: the toolkit's own end may hang as well
    qInstallMessageHandler(endWithoutDisplay);
    QApplication application(ownArguments, argv);
    qInstallMessageHandler(endWhereToolkitGivesUp);
    QApplication::setApplicationName(QStringLiteral("vantor"));
    QApplication::setApplicationVersion(QStringLiteral(VANTOR_VERSION));
    QApplication::setDesktopFileName(QString::fromLatin1(applicationIdentifier));
    adoptNumbersOfTheUser();
    const UserLanguage language(QLocale::system().uiLanguages());
    auto instance = std::make_unique<SingleInstance>(Activation{line.action, activationToken});
    if (instance->role() == SingleInstance::Role::second) return EXIT_SUCCESS;
    installViewAccessibility();

    const auto vantor = makeVantorApp({machine,
                                       settingsFile,
                                       makeNativeStatusBar(),
                                       [] { QApplication::quit(); },
                                       makeQtExportPlatform(),
                                       desktop,
                                       {},
                                       confinement,
                                       makeNativeDesktopAppearance(),
                                       autostartFile});
    instance->setOnActivate([&](const Activation& asked) { vantor->perform(asked); });
    const QuitWatch quitWatch(application, watchdog);
    const TerminationSignals terminationSignals([] { QApplication::quit(); });
    const SessionEnd sessionEnd(application, [&] { vantor->saveState(); });
    using Listening = Confinement::Listening;
    confinement->confineForRunning(instance->mayBeginToListen() ? Listening::mayBegin
                                                                : Listening::isOver);
    vantor->begin(line.action);
    const int status = QApplication::exec();
    watchdog.ending();
    instance.reset();  // a program started from now on is the first
    // A probe that hangs in the kernel cannot be joined, and cleaning up would destroy what it
    // still uses.
    if (!vantor->shutDown(quitPatience)) std::_Exit(status);
    return status;
}

}  // namespace vantor

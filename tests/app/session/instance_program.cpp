#include <QApplication>

#include <chrono>
#include <cstdio>
#include <memory>
#include <string_view>

#include "app/files/user_defaults.h"
#include "app/qt_main_loop.h"
#include "app/session/single_instance.h"
#include "app/session/termination_signals.h"
#include "app/window/window_activation.h"
#include "app/window/window_geometry.h"
#include "platform/native_machine.h"

/// A program of which there is one: says "first" and then, for each later start, "activated" or the
/// name of what else it was started for, and its token; or says "second" and ends. With a window,
/// which keeps its place and has the title of the second argument, if "window" is said; with
/// "hanging" it never answers. PATIENCE_OF_INSTANCE, in the environment, are milliseconds;
/// ACTION_OF_INSTANCE is what it is started for.
int main(int argc, char** argv) {
    const std::string_view manner = argc > 1 ? argv[1] : "";
    const QString token = vantor::activationTokenOfEnvironment();
    if (manner != "window") qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const auto say = [](const QString& text) {
        std::puts(text.toUtf8().constData());
        std::fflush(stdout);
    };
    auto surroundings = vantor::SingleInstance::Surroundings::ofProcess();
    if (const int patience = qEnvironmentVariableIntValue("PATIENCE_OF_INSTANCE"))
        surroundings.patience = std::chrono::milliseconds(patience);
    const auto action = vantor::actionNamed(qgetenv("ACTION_OF_INSTANCE").toStdString());
    vantor::SingleInstance instance({action.value_or(vantor::AppAction::activate), token},
                                    surroundings);
    if (instance.role() == vantor::SingleInstance::Role::second) {
        say(QStringLiteral("second"));
        return 0;
    }
    QWidget window;
    window.setWindowTitle(QString::fromLocal8Bit(argc > 2 ? argv[2] : "The one"));
    window.setMinimumSize(200, 100);
    window.resize(300, 200);
    const auto mainLoop = std::make_shared<vantor::QtMainLoop>();
    const auto frames = vantor::openDefaults(
        vantor::WindowGeometry::fileBeside(vantor::userSettingsFile()), mainLoop,
        vantor::makeNativeQueueFactory([] { vantor::TerminationSignals::keepFromThisThread(); }),
        "frames");
    frames->waitForRead();
    auto geometry = std::make_unique<vantor::WindowGeometry>(window, "Vantor.LegacyDashboard",
                                                             frames, mainLoop);
    instance.setOnActivate([&](const vantor::Activation& asked) {
        if (manner == "window") vantor::bringToFront(window, asked.token);
        const auto name = vantor::nameOf(asked.action);
        const QString what = asked.action == vantor::AppAction::activate
                                 ? QStringLiteral("activated")
                                 : QString::fromUtf8(name.data(), qsizetype(name.size()));
        say(what + u' ' + asked.token);
    });
    const vantor::TerminationSignals handling([] { QCoreApplication::exit(0); });
    if (manner == "window") window.show();
    say(QStringLiteral("first"));
    if (manner == "hanging") {
        char byte = 0;
        return std::fread(&byte, 1, 1, stdin) == 1 ? 1 : 0;
    }
    const int status = QApplication::exec();
    geometry.reset();
    frames->waitForWrite(vantor::DefaultsFile::endPatience);
    return status;
}

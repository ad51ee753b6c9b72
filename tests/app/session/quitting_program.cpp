#include <unistd.h>

#include <QCoreApplication>
#include <QMetaObject>

#include <cstdio>
#include <future>
#include <memory>
#include <string_view>
#include <utility>

#include "app/run_vantor.h"
#include "platform/simulated/simulated_machine.h"

namespace {

void hang() {
    std::promise<void> never;
    never.get_future().wait();
}

void getStuck() {
    std::puts("stuck");
    std::fflush(stdout);
    char byte = 0;
    [[maybe_unused]] const auto count = ::read(STDIN_FILENO, &byte, 1);
}

void quitAndGetStuck() {
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit,
                     [] { getStuck(); });
    QCoreApplication::quit();
}

}  // namespace

/// The whole program on a machine whose first processor reading asks it to quit with status 7, and
/// then answers ("answering") or never does ("hanging"). Says "quitting" when it asks. Or the
/// reading gets its main thread stuck in a read of standard input, out of the blue ("stuck") or
/// when it is about to quit ("quitting"); says "stuck" then. What follows are the program's own
/// arguments.
int main(int argc, char** argv) {
    const std::string_view manner = argc > 1 ? argv[1] : "";
    const bool hangs = manner == "hanging";
    const auto machine = vantor::SimulatedMachine::laptop();
    if (manner == "stuck" || manner == "quitting") {
        machine->hostProcessors().onTotalTicks = [quits = manner == "quitting",
                                                  asked = std::make_shared<bool>(false)] {
            if (std::exchange(*asked, true)) return;
            QMetaObject::invokeMethod(
                QCoreApplication::instance(), [quits] { quits ? quitAndGetStuck() : getStuck(); },
                Qt::QueuedConnection);
        };
        return vantor::runVantor(argc - 1, argv + 1, machine);
    }
    machine->hostProcessors().onTotalTicks = [hangs, asked = std::make_shared<bool>(false)] {
        if (*asked) return;
        *asked = true;
        std::puts("quitting");
        std::fflush(stdout);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { QCoreApplication::exit(7); }, Qt::QueuedConnection);
        if (hangs) hang();
    };
    return vantor::runVantor(argc - 1, argv + 1, machine);
}

#include <QCoreApplication>
#include <QMetaObject>

#include <cstdio>
#include <future>
#include <memory>
#include <string_view>

#include "app/run_vantor.h"
#include "platform/simulated/simulated_machine.h"

namespace {

void hang() {
    std::promise<void> never;
    never.get_future().wait();
}

}  // namespace

/// The whole program on a machine whose first processor reading asks it to quit with status 7, and
/// then answers ("answering") or never does ("hanging"). Says "quitting" when it asks.
int main(int argc, char** argv) {
    const bool hangs = argc > 1 && std::string_view(argv[1]) == "hanging";
    const auto machine = vantor::SimulatedMachine::laptop();
    machine->hostProcessors().onTotalTicks = [hangs, asked = std::make_shared<bool>(false)] {
        if (*asked) return;
        *asked = true;
        std::puts("quitting");
        std::fflush(stdout);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { QCoreApplication::exit(7); }, Qt::QueuedConnection);
        if (hangs) hang();
    };
    return vantor::runVantor(argc, argv, machine);
}

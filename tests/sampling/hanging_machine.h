#pragma once

#include <unistd.h>

#include <future>
#include <memory>

#include "platform/simulated/simulated_machine.h"

namespace vantor {

/// A machine whose processors never answer, like a call stuck in the kernel.
struct HangingMachine {
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    std::shared_ptr<std::promise<void>> stuck = std::make_shared<std::promise<void>>();

    HangingMachine() {
        machine->hostProcessors().onTotalTicks = [signal = stuck] {
            signal->set_value();
            while (true)
                ::pause();
        };
    }

    /// Returns once a probe is inside the call.
    void waitUntilStuck() { stuck->get_future().wait(); }
};

}  // namespace vantor

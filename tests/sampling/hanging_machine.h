#pragma once

#include <unistd.h>

#include <future>
#include <memory>

#include "platform/simulated/simulated_machine.h"

namespace vantor {

/// A machine one of whose calls never answers, as if it were stuck in the kernel.
struct HangingMachine {
    enum class Call { processors, volumes, graphics };

    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    std::shared_ptr<std::promise<void>> stuck = std::make_shared<std::promise<void>>();

    explicit HangingMachine(Call call = Call::processors) {
        const auto hang = [signal = stuck] {
            signal->set_value();
            while (true)
                ::pause();
        };
        if (call == Call::processors) {
            machine->hostProcessors().onTotalTicks = hang;
        } else if (call == Call::graphics) {
            machine->accelerators().onLookup = hang;
        } else {
            machine->mountedVolumes().onMountedVolumes = hang;
        }
    }

    /// Returns once a probe is inside the call.
    void waitUntilStuck() { stuck->get_future().wait(); }
};

}  // namespace vantor

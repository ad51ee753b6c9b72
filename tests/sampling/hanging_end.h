#pragma once

#include <memory>
#include <thread>

#include "platform/native_machine.h"
#include "platform/threads/threaded_serial_queue.h"
#include "sampling/end_of_main.h"
#include "sampling/fake_world.h"
#include "sampling/hanging_machine.h"
#include "support/threaded_main_loop.h"

namespace vantor {

/// The main of a program that runs a monitor one of whose probes hangs, then quits as a program
/// does: by returning from main, which ends everything that has a static lifetime.
inline int runUntilStuck(HangingMachine::Call call) {
    HangingMachine hanging(call);
    const auto loop = std::make_shared<ThreadedMainLoop>();
    const auto queues = std::make_shared<ThreadedSerialQueueFactory>(setUtilityPriority);
    const auto monitor = SystemMonitor::make(makeSettings(), hanging.machine, loop, queues);
    monitor->start();
    std::thread quitter([&] {
        hanging.waitUntilStuck();
        loop->stop();
    });
    loop->run();
    quitter.join();
    return endOfMain();
}

}  // namespace vantor

#include <memory>
#include <thread>

#include "platform/native_machine.h"
#include "platform/threads/threaded_main_loop.h"
#include "platform/threads/threaded_serial_queue.h"
#include "sampling/end_of_main.h"
#include "sampling/hanging_machine.h"
#include "sampling/wound_world.h"

/// Runs a monitor whose cpu probe hangs, then quits as a program does: by returning from main,
/// which ends everything that has a static lifetime.
int main() {
    using namespace vantor;
    HangingMachine hanging;
    const auto loop = std::make_shared<ThreadedMainLoop>();
    const auto queues = std::make_shared<ThreadedSerialQueueFactory>(assumeUtilityRole);
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

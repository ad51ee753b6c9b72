#include "platform/native_machine.h"

#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"
#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/mac_machine.h"
#include "platform/macos/system/mac_name_order.h"
#include "platform/macos/system/mac_queue_factory.h"
#include "platform/posix/posix_atomic_file_writer.h"
#include "platform/posix/posix_local_calendar.h"

namespace vantor {

std::shared_ptr<Machine> makeNativeMachine() {
    return std::make_shared<MacMachine>();
}

std::shared_ptr<AtomicFileWriter> makeNativeFileWriter() {
    return std::make_shared<PosixAtomicFileWriter>();
}

std::shared_ptr<LocalCalendar> makeNativeLocalCalendar() {
    return std::make_shared<PosixLocalCalendar>();
}

std::unique_ptr<NameOrder> makeNativeNameOrder() {
    return std::make_unique<MacNameOrder>(loadFrameworks());
}

std::shared_ptr<BackgroundQueueFactory> makeNativeQueueFactory(
    std::function<void()> prepareThread) {
    return std::make_shared<MacQueueFactory>(
        [prepare = std::move(prepareThread), frameworks = loadFrameworks()](Task& task) {
            if (prepare) prepare();
            const AutoreleasePool pool(frameworks->objectiveC);
            task();
        });
}

}  // namespace vantor

#include "platform/native_machine.h"

#include <utility>

#include "platform/linux/linux_machine.h"
#include "platform/posix/posix_atomic_file_writer.h"
#include "platform/posix/posix_local_calendar.h"
#include "platform/threads/threaded_serial_queue.h"

namespace vantor {

std::shared_ptr<Machine> makeNativeMachine() {
    return std::make_shared<LinuxMachine>();
}

std::shared_ptr<AtomicFileWriter> makeNativeFileWriter() {
    return std::make_shared<PosixAtomicFileWriter>();
}

std::shared_ptr<LocalCalendar> makeNativeLocalCalendar() {
    return std::make_shared<PosixLocalCalendar>();
}

std::shared_ptr<BackgroundQueueFactory> makeNativeQueueFactory(
    std::function<void()> prepareThread) {
    return std::make_shared<ThreadedSerialQueueFactory>(
        [prepare = std::move(prepareThread)](const std::string& label) {
            if (prepare) prepare();
            setUtilityPriority(label);
        });
}

}  // namespace vantor

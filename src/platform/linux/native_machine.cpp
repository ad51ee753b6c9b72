#include "platform/native_machine.h"

#include "platform/linux/linux_atomic_file_writer.h"
#include "platform/linux/linux_local_calendar.h"
#include "platform/linux/linux_machine.h"

namespace vantor {

std::shared_ptr<Machine> makeNativeMachine() {
    return std::make_shared<LinuxMachine>();
}

std::shared_ptr<AtomicFileWriter> makeNativeFileWriter() {
    return std::make_shared<LinuxAtomicFileWriter>();
}

std::shared_ptr<LocalCalendar> makeNativeLocalCalendar() {
    return std::make_shared<LinuxLocalCalendar>();
}

}  // namespace vantor

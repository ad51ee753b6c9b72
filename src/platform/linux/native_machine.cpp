#include "platform/native_machine.h"

#include "platform/linux/linux_machine.h"

namespace vantor {

std::shared_ptr<Machine> makeNativeMachine() {
    return std::make_shared<LinuxMachine>();
}

}  // namespace vantor

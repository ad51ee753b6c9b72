#include "platform/linux/linux_system_controller.h"

namespace vantor {

SystemController::Service LinuxSystemController::matchingService() {
    return 0;
}

void LinuxSystemController::release(Service) {}

SystemController::Connection LinuxSystemController::open(Service) {
    return 0;
}

void LinuxSystemController::close(Connection) {}

int LinuxSystemController::callStructMethod(Connection, std::uint32_t, std::span<const std::byte>,
                                            std::span<std::byte>, std::size_t&) {
    return 1;
}

}  // namespace vantor

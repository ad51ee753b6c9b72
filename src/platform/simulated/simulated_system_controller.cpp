#include "platform/simulated/simulated_system_controller.h"

namespace vantor {

SystemController::Service SimulatedSystemController::matchingService() {
    return 0;
}

void SimulatedSystemController::release(Service) {}

SystemController::Connection SimulatedSystemController::open(Service) {
    return 0;
}

void SimulatedSystemController::close(Connection) {}

int SimulatedSystemController::callStructMethod(Connection, std::uint32_t,
                                                std::span<const std::byte>, std::span<std::byte>,
                                                std::size_t&) {
    return 1;
}

}  // namespace vantor

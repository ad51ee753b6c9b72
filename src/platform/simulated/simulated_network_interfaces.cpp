#include "platform/simulated/simulated_network_interfaces.h"

#include <cerrno>

namespace vantor {

int SimulatedNetworkInterfaces::sysctl(std::span<const int>, std::span<std::byte>, std::size_t&) {
    return ENOENT;
}

bool SimulatedNetworkInterfaces::indexToName(std::uint32_t, std::span<char>) {
    return false;
}

std::optional<std::span<const NetworkInterfaces::Entry>> SimulatedNetworkInterfaces::getifaddrs() {
    return std::nullopt;
}

void SimulatedNetworkInterfaces::freeifaddrs() {}

bool SimulatedNetworkInterfaces::numericHost(const Entry&, std::span<char>) {
    return false;
}

}  // namespace vantor

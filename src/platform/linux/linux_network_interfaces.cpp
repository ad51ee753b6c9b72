#include "platform/linux/linux_network_interfaces.h"

#include <cerrno>

namespace vantor {

int LinuxNetworkInterfaces::sysctl(std::span<const int>, std::span<std::byte>, std::size_t&) {
    return ENOENT;
}

bool LinuxNetworkInterfaces::indexToName(std::uint32_t, std::span<char>) {
    return false;
}

std::optional<std::span<const NetworkInterfaces::Entry>> LinuxNetworkInterfaces::getifaddrs() {
    return std::nullopt;
}

void LinuxNetworkInterfaces::freeifaddrs() {}

bool LinuxNetworkInterfaces::numericHost(const Entry&, std::span<char>) {
    return false;
}

}  // namespace vantor

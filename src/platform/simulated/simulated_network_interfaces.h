#pragma once

#include "platform/network_interfaces.h"

namespace vantor {

/// Interfaces by script.
class SimulatedNetworkInterfaces : public NetworkInterfaces {
  public:
    int sysctl(std::span<const int> path, std::span<std::byte> buffer, std::size_t& size) override;
    bool indexToName(std::uint32_t index, std::span<char> name) override;
    std::optional<std::span<const Entry>> getifaddrs() override;
    void freeifaddrs() override;
    bool numericHost(const Entry& entry, std::span<char> text) override;
};

}  // namespace vantor

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vantor {

/// One network interface.
struct NetworkInterfaceStats {
    std::string name;
    std::optional<std::string> ipv4Address;  ///< numeric
    std::optional<std::string> ipv6Address;  ///< numeric
    std::uint64_t receivedBytes = 0;         ///< cumulative, as the kernel counts them
    std::uint64_t sentBytes = 0;
    double downloadBytesPerSecond = 0;
    double uploadBytesPerSecond = 0;
    bool isPointToPoint = false;

    bool operator==(const NetworkInterfaceStats&) const = default;
};

}  // namespace vantor

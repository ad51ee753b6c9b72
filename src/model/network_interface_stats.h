#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

#include "model/field.h"

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

template <>
inline constexpr auto fieldsOf<NetworkInterfaceStats> =
    std::tuple{Field{"name", &NetworkInterfaceStats::name},
               Field{"ipv4Address", &NetworkInterfaceStats::ipv4Address},
               Field{"ipv6Address", &NetworkInterfaceStats::ipv6Address},
               Field{"receivedBytes", &NetworkInterfaceStats::receivedBytes},
               Field{"sentBytes", &NetworkInterfaceStats::sentBytes},
               Field{"downloadBytesPerSecond", &NetworkInterfaceStats::downloadBytesPerSecond},
               Field{"uploadBytesPerSecond", &NetworkInterfaceStats::uploadBytesPerSecond},
               Field{"isPointToPoint", &NetworkInterfaceStats::isPointToPoint}};

}  // namespace vantor

#pragma once

#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "model/field.h"
#include "model/network_interface_stats.h"

namespace vantor {

/// The host's network: its name, the interface of the default route, and every interface.
struct NetworkStats {
    std::string hostname;
    std::optional<std::string> primaryInterfaceName;  ///< carries the default route
    std::optional<std::string> primaryIPv4Address;    ///< numeric, of the primary interface
    std::optional<std::string> primaryIPv6Address;
    double downloadBytesPerSecond = 0;  ///< of the primary interface, not a sum
    double uploadBytesPerSecond = 0;
    std::vector<NetworkInterfaceStats> interfaces;

    bool operator==(const NetworkStats&) const = default;

    /// The placeholder until the first reading.
    static const NetworkStats& empty();
};

template <>
inline constexpr auto fieldsOf<NetworkStats> =
    std::tuple{Field{"hostname", &NetworkStats::hostname},
               Field{"primaryInterfaceName", &NetworkStats::primaryInterfaceName},
               Field{"primaryIPv4Address", &NetworkStats::primaryIPv4Address},
               Field{"primaryIPv6Address", &NetworkStats::primaryIPv6Address},
               Field{"downloadBytesPerSecond", &NetworkStats::downloadBytesPerSecond},
               Field{"uploadBytesPerSecond", &NetworkStats::uploadBytesPerSecond},
               Field{"interfaces", &NetworkStats::interfaces}};

}  // namespace vantor

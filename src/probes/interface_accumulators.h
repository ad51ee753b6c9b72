#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/name_map.h"
#include "platform/network_interfaces.h"

namespace vantor {

/// What is known of one interface in one reading. The texts keep their storage from one to the
/// next; an empty one is an address that the interface does not have.
struct InterfaceAccumulator {
    std::string ipv4Address;
    std::string ipv6Address;
    std::uint64_t received = 0;
    std::uint64_t sent = 0;
    bool isPointToPoint = false;
    bool uses64BitCounters = false;
    std::uint32_t index = 0;  ///< of the interface that the 64-bit counters are of
};

// Which interfaces count, and which of their addresses. Pure functions.

/// Whether an interface is measured and listed at all: up, running, and not the loopback. (Those
/// that lead from point to point are left out later, where the settings say so.)
bool isEligible(const NetworkInterfaces::Record& record);

/// Whether a numeric IPv4 address is one that a machine gives itself when nobody else does
/// (169.254.0.0/16).
bool isIPv4LinkLocal(const char* address);

/// The same for IPv6 (fe80::/10); a "%scope" at the end does not matter.
bool isIPv6LinkLocal(std::string_view address);

/// Takes `offered` for an interface that has `held` (empty = none yet): the first address stays,
/// except that a routable one replaces a link-local one.
void offerIPv4Address(std::string& held, const char* offered);
void offerIPv6Address(std::string& held, const char* offered);

/// Gathers the eligible interfaces, each under its name with the counters and addresses that count.
/// One thread at a time.
class InterfaceAccumulators {
  public:
    using Map = NameMap<InterfaceAccumulator>;

    /// Replaces the content.
    void gather(const NetworkInterfaces::List& list);

    const Map& map() const { return interfaceAccumulatorBuffer_; }

  private:
    void add(const NetworkInterfaces::Record& record);

    Map interfaceAccumulatorBuffer_;
};

}  // namespace vantor

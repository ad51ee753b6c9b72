#pragma once

#include <cstdint>
#include <string>

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

/// Gathers the interfaces that are up, running and not the loopback, each under its name with the
/// counters and addresses that count. One thread at a time.
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

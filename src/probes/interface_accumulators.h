#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/network_interfaces.h"
#include "probes/interface_dump_reader.h"
#include "probes/name_map.h"

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
    std::uint16_t index = 0;  ///< of the interface that the 64-bit counters are of
};

/// Gathers the interfaces that are up, running and not the loopback from the list of addresses. One
/// thread at a time.
class InterfaceAccumulators {
  public:
    using Map = NameMap<InterfaceAccumulator>;

    /// Replaces the content; false when the list cannot be had or is empty.
    bool gather(NetworkInterfaces& interfaces, const InterfaceDumpReader::Counters& counters);

    const Map& map() const { return interfaceAccumulatorBuffer_; }

  private:
    void add(NetworkInterfaces& interfaces, const NetworkInterfaces::Entry& entry,
             const InterfaceDumpReader::Counters& counters);

    Map interfaceAccumulatorBuffer_;
    std::array<char, 1025> numericHostBuffer_{};
};

}  // namespace vantor

#pragma once

#include <array>

#include "platform/darwin/interface_calls.h"
#include "platform/darwin/interface_dump_reader.h"
#include "platform/network_interfaces.h"

namespace vantor {

/// The interfaces of a Mac: the list of addresses, and for each link in it the 64-bit counters of
/// the routing table's list, or the 32-bit ones that it carries itself where that has none.
/// Addresses that cannot be formatted are left out. `calls` must outlive it.
class DarwinNetworkInterfaces : public NetworkInterfaces {
  public:
    explicit DarwinNetworkInterfaces(InterfaceCalls& calls) : calls_(calls) {}

    bool read(List& list) override;

  private:
    void add(const InterfaceCalls::Entry& entry, List& list);
    void takeCounters(const InterfaceCalls::Entry& entry, Record& record) const;
    void takeAddress(const InterfaceCalls::Entry& entry, Record& record);

    InterfaceCalls& calls_;
    InterfaceDumpReader dumpReader_;
    std::array<char, 1025> numericHostBuffer_{};
};

}  // namespace vantor

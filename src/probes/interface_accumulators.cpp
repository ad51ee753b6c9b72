#include "probes/interface_accumulators.h"

#include "probes/address_rules.h"

namespace vantor {

namespace {

using InterfaceEntry = NetworkInterfaces::Entry;

class ListGuard {
  public:
    explicit ListGuard(NetworkInterfaces& interfaces) : interfaces_(interfaces) {}
    ListGuard(const ListGuard&) = delete;
    ListGuard& operator=(const ListGuard&) = delete;
    ~ListGuard() { interfaces_.freeifaddrs(); }

  private:
    NetworkInterfaces& interfaces_;
};

bool isEligible(const InterfaceEntry& entry) {
    constexpr auto needed = NetworkInterfaces::up | NetworkInterfaces::running;
    return entry.name && *entry.name != '\0' && (entry.flags & needed) == needed &&
           (entry.flags & NetworkInterfaces::loopback) == 0;
}

void takeCounters(InterfaceAccumulator& to, const InterfaceEntry& entry,
                  const InterfaceDumpReader::Counters& counters) {
    if (const InterfaceCounters* const wide = counters.find(entry.name)) {
        to.received = wide->received;
        to.sent = wide->sent;
        to.index = wide->index;
        to.uses64BitCounters = true;
    } else if (entry.linkData) {
        to.received = entry.linkData->received;
        to.sent = entry.linkData->sent;
    }
}

/// A fresh one that keeps the storage of its texts.
void clear(InterfaceAccumulator& accumulator) {
    accumulator.ipv4Address.clear();
    accumulator.ipv6Address.clear();
    accumulator.received = 0;
    accumulator.sent = 0;
    accumulator.isPointToPoint = false;
    accumulator.uses64BitCounters = false;
    accumulator.index = 0;
}

}  // namespace

bool InterfaceAccumulators::gather(NetworkInterfaces& interfaces,
                                   const InterfaceDumpReader::Counters& counters) {
    const auto list = interfaces.getifaddrs();
    if (!list) return false;
    const ListGuard guard(interfaces);
    if (list->empty()) return false;
    interfaceAccumulatorBuffer_.clear();
    for (const InterfaceEntry& entry : *list) {
        if (isEligible(entry)) add(interfaces, entry, counters);
    }
    return true;
}

void InterfaceAccumulators::add(NetworkInterfaces& interfaces, const InterfaceEntry& entry,
                                const InterfaceDumpReader::Counters& counters) {
    const auto [accumulator, isNew] = interfaceAccumulatorBuffer_.hold(entry.name);
    if (isNew) clear(accumulator);
    accumulator.isPointToPoint = (entry.flags & NetworkInterfaces::pointToPoint) != 0;
    switch (entry.family) {
        case NetworkInterfaces::Family::link:
            takeCounters(accumulator, entry, counters);
            break;
        case NetworkInterfaces::Family::ipv4:
            if (interfaces.numericHost(entry, numericHostBuffer_)) {
                offerIPv4Address(accumulator.ipv4Address, numericHostBuffer_.data());
            }
            break;
        case NetworkInterfaces::Family::ipv6:
            if (interfaces.numericHost(entry, numericHostBuffer_)) {
                offerIPv6Address(accumulator.ipv6Address, numericHostBuffer_.data());
            }
            break;
        case NetworkInterfaces::Family::none:
        case NetworkInterfaces::Family::other:
            break;
    }
}

}  // namespace vantor

#include "platform/darwin/darwin_network_interfaces.h"

namespace vantor {

namespace {

using InterfaceEntry = InterfaceCalls::Entry;

class AddressListGuard {
  public:
    explicit AddressListGuard(InterfaceCalls& calls) : calls_(calls) {}
    AddressListGuard(const AddressListGuard&) = delete;
    AddressListGuard& operator=(const AddressListGuard&) = delete;
    ~AddressListGuard() { calls_.freeifaddrs(); }

  private:
    InterfaceCalls& calls_;
};

bool has(const InterfaceEntry& entry, std::uint32_t flag) {
    return (entry.flags & flag) != 0;
}

bool isOf(const NetworkInterfaces::Record& record, const InterfaceEntry& entry) {
    return record.name == entry.name && record.isUp == has(entry, InterfaceCalls::up) &&
           record.isRunning == has(entry, InterfaceCalls::running) &&
           record.isLoopback == has(entry, InterfaceCalls::loopback) &&
           record.isPointToPoint == has(entry, InterfaceCalls::pointToPoint);
}

}  // namespace

bool DarwinNetworkInterfaces::read(List& list) {
    if (!dumpReader_.read64BitInterfaceCounters(calls_)) return false;
    const auto entries = calls_.getifaddrs();
    if (!entries) return false;
    const AddressListGuard guard(calls_);
    if (entries->empty()) return false;
    list.clear();
    for (const InterfaceEntry& entry : *entries) {
        if (entry.name && *entry.name != '\0') add(entry, list);
    }
    return true;
}

/// Each entry has flags of its own: one that contradicts the entry before it begins a new record.
void DarwinNetworkInterfaces::add(const InterfaceEntry& entry, List& list) {
    if (list.empty() || !isOf(list.back(), entry)) {
        Record& fresh = list.add();
        fresh.reset(entry.name);
        fresh.isUp = has(entry, InterfaceCalls::up);
        fresh.isRunning = has(entry, InterfaceCalls::running);
        fresh.isLoopback = has(entry, InterfaceCalls::loopback);
        fresh.isPointToPoint = has(entry, InterfaceCalls::pointToPoint);
    }
    switch (entry.family) {
        case InterfaceCalls::Family::link:
            takeCounters(entry, list.back());
            break;
        case InterfaceCalls::Family::ipv4:
        case InterfaceCalls::Family::ipv6:
            takeAddress(entry, list.back());
            break;
        case InterfaceCalls::Family::none:
        case InterfaceCalls::Family::other:
            break;
    }
}

void DarwinNetworkInterfaces::takeCounters(const InterfaceEntry& entry, Record& record) const {
    if (const InterfaceCounters* const wide = dumpReader_.counters().find(entry.name)) {
        record.index = wide->index;
        record.counters = Counters{wide->received, wide->sent};
    } else if (entry.linkData) {
        record.shortCounters = ShortCounters{entry.linkData->received, entry.linkData->sent};
    }
}

void DarwinNetworkInterfaces::takeAddress(const InterfaceEntry& entry, Record& record) {
    if (!calls_.numericHost(entry, numericHostBuffer_)) return;
    Address& address = record.addresses.add();
    address.isIPv6 = entry.family == InterfaceCalls::Family::ipv6;
    address.text = numericHostBuffer_.data();
}

}  // namespace vantor

#include "probes/interface_accumulators.h"

#include "probes/interface_rules.h"

namespace vantor {

namespace {

using InterfaceRecord = NetworkInterfaces::Record;

void takeCounters(InterfaceAccumulator& to, const InterfaceRecord& record) {
    if (record.counters) {
        to.received = record.counters->received;
        to.sent = record.counters->sent;
        to.index = record.index;
        to.uses64BitCounters = true;
    } else if (record.shortCounters) {
        to.received = record.shortCounters->received;
        to.sent = record.shortCounters->sent;
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

void InterfaceAccumulators::gather(const NetworkInterfaces::List& list) {
    interfaceAccumulatorBuffer_.clear();
    for (const InterfaceRecord& record : list) {
        if (isEligible(record)) add(record);
    }
}

void InterfaceAccumulators::add(const InterfaceRecord& record) {
    const auto [accumulator, isNew] = interfaceAccumulatorBuffer_.hold(record.name);
    if (isNew) clear(accumulator);
    accumulator.isPointToPoint = record.isPointToPoint;
    takeCounters(accumulator, record);
    for (const NetworkInterfaces::Address& address : record.addresses) {
        if (address.isIPv6) {
            offerIPv6Address(accumulator.ipv6Address, address.text.c_str());
        } else {
            offerIPv4Address(accumulator.ipv4Address, address.text.c_str());
        }
    }
}

}  // namespace vantor

#include "probes/interface_accumulators.h"

#include <arpa/inet.h>

#include <array>
#include <charconv>

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

bool isEligible(const NetworkInterfaces::Record& record) {
    return record.isUp && record.isRunning && !record.isLoopback;
}

bool isIPv4LinkLocal(const char* address) {
    std::array<std::uint8_t, 4> bytes{};
    return ::inet_pton(AF_INET, address, bytes.data()) == 1 && bytes[0] == 169 && bytes[1] == 254;
}

bool isIPv6LinkLocal(std::string_view address) {
    const auto colon = address.find(':');
    if (colon == std::string_view::npos) return false;
    const char* const end = address.data() + colon;
    std::uint16_t group = 0;
    const auto [rest, error] = std::from_chars(address.data(), end, group, 16);
    return error == std::errc{} && rest == end && (group & 0xFFC0U) == 0xFE80U;
}

void offerIPv4Address(std::string& held, const char* offered) {
    if (held.empty() || (isIPv4LinkLocal(held.c_str()) && !isIPv4LinkLocal(offered))) {
        held = offered;
    }
}

void offerIPv6Address(std::string& held, const char* offered) {
    if (held.empty() || (isIPv6LinkLocal(held) && !isIPv6LinkLocal(offered))) held = offered;
}

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

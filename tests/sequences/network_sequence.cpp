#include "sequences/network_sequence.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace vantor {

namespace {

using Family = InterfaceCalls::Family;

constexpr std::array names{"en0",  "en1",   "en10",   "wlan0",    "utun3",
                           "ppp0", "veth9", "veth10", "bridge-1", "x"};
constexpr std::array ipv4Addresses{"192.168.1.2", "10.0.0.7", "169.254.3.4", "169.253.1.1",
                                   "169.254.200.1"};
constexpr std::array ipv6Addresses{"fe80::1%en0", "2001:db8::5", "fd00::9",
                                   "febf::1",     "fec0::1",     "fe80::2%x"};

bool isEligible(std::uint32_t flags) {
    using Net = InterfaceCalls;
    return (flags & Net::up) != 0 && (flags & Net::running) != 0 && (flags & Net::loopback) == 0;
}

}  // namespace

NetworkSequence::NetworkSequence(std::uint64_t seed) : chance_(seed) {
    for (std::uint64_t i = chance_.below(5); i > 0; --i)
        addOrRemove();
}

/// With a number that may be new, or one that another interface had.
NetworkSequence::Interface NetworkSequence::newInterface(std::string name) {
    Interface interface;
    interface.name = std::move(name);
    const auto isTaken = [&] {
        return std::any_of(net_.interfaces.begin(), net_.interfaces.end(),
                           [&](const Interface& i) { return i.index == interface.index; });
    };
    do {
        interface.index =
            static_cast<std::uint16_t>(1 + chance_.below(chance_.oneIn(2) ? 12 : 65535));
    } while (isTaken());
    interface.received = chance_.ofAnySize();
    interface.sent = chance_.ofAnySize(40);
    if (chance_.oneIn(4)) interface.flags |= InterfaceCalls::pointToPoint;
    changeAddresses(interface);
    return interface;
}

void NetworkSequence::addOrRemove() {
    const std::string name = chance_.oneOf(names);
    const auto found = std::find_if(net_.interfaces.begin(), net_.interfaces.end(),
                                    [&](const Interface& i) { return i.name == name; });
    if (found == net_.interfaces.end()) {
        net_.interfaces.push_back(newInterface(name));
    } else if (chance_.oneIn(2)) {
        *found = newInterface(name);  // gone and come again between two readings
    } else {
        net_.interfaces.erase(found);
    }
}

/// Two interfaces get each other's name or number, or the list another order.
void NetworkSequence::exchange() {
    if (net_.interfaces.empty()) return;
    Interface& a = net_.interfaces[chance_.placeIn(net_.interfaces)];
    Interface& b = net_.interfaces[chance_.placeIn(net_.interfaces)];
    switch (chance_.below(3)) {
        case 0:
            std::swap(a.name, b.name);
            break;
        case 1:
            std::swap(a.index, b.index);
            break;
        default:
            std::swap(a, b);
    }
}

void NetworkSequence::transfer() {
    for (Interface& interface : net_.interfaces) {
        if (!chance_.oneIn(3)) interface.received += chance_.ofAnySize(36);
        if (!chance_.oneIn(3)) interface.sent += chance_.ofAnySize(36);
        if (chance_.oneIn(30)) interface.received = chance_.ofAnySize(20);
        if (chance_.oneIn(30)) interface.sent = chance_.ofAnySize(20);
        if (!interface.linkData) continue;
        interface.linkData->received += static_cast<std::uint32_t>(chance_.ofAnySize(30));
        interface.linkData->sent += static_cast<std::uint32_t>(chance_.ofAnySize(30));
    }
}

void NetworkSequence::changeAddresses(Interface& interface) {
    interface.addresses.clear();
    for (std::uint64_t i = chance_.below(4); i > 0; --i) {
        const bool isFormattable = !chance_.oneIn(10);
        if (chance_.oneIn(2)) {
            interface.addresses.push_back(
                {Family::ipv4, chance_.oneOf(ipv4Addresses), isFormattable});
        } else {
            interface.addresses.push_back(
                {Family::ipv6, chance_.oneOf(ipv6Addresses), isFormattable});
        }
    }
}

void NetworkSequence::changeInterface(Interface& interface) {
    using Net = InterfaceCalls;
    if (chance_.oneIn(8)) interface.flags ^= chance_.oneOf(std::array{Net::up, Net::running});
    if (chance_.oneIn(20)) interface.flags ^= Net::loopback;
    if (chance_.oneIn(10)) interface.flags ^= Net::pointToPoint;
    if (chance_.oneIn(3)) interface.flags |= Net::up | Net::running;
    if (chance_.oneIn(20)) interface.hasMessage = !interface.hasMessage;
    if (chance_.oneIn(20)) interface.hasLinkEntry = !interface.hasLinkEntry;
    if (chance_.oneIn(20)) interface.isListed = !interface.isListed;
    if (chance_.oneIn(10))
        interface.hasMessage = interface.hasLinkEntry = interface.isListed = true;
    if (chance_.oneIn(10)) interface.linkData = InterfaceCalls::LinkData{};
    if (chance_.oneIn(20)) interface.linkData.reset();
    if (chance_.oneIn(10)) changeAddresses(interface);
}

void NetworkSequence::changePrimary() {
    auto& values = machine_->dynamicStore().values;
    values.clear();
    primary_.reset();
    for (const char* const key : {"State:/Network/Global/IPv4", "State:/Network/Global/IPv6"}) {
        const std::string name = chance_.oneOf(names);
        PropertyValue value = name;  // no dictionary: as good as nothing
        switch (chance_.below(5)) {
            case 0:
                continue;
            case 1:
                break;
            case 2:
                value = PropertyValue(PropertyDictionary{{"PrimaryInterface", ""}});
                break;
            case 3:
                value = PropertyValue(PropertyDictionary{{"Router", PropertyValue(name)}});
                break;
            default:
                value =
                    PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue(name)}});
                if (!primary_) primary_ = name;
        }
        values.insert_or_assign(key, std::move(value));
    }
}

/// Whether the lists can be had this time.
bool NetworkSequence::failAtTimes() {
    bool isAnswered = true;
    const auto happens = [&](std::uint64_t oneIn) {
        const bool now = chance_.oneIn(oneIn);
        isAnswered = isAnswered && !now;
        return now;
    };
    net_.sizeErrors.clear();
    net_.listErrors.clear();
    if (happens(60)) net_.sizeErrors = {EPERM};
    if (happens(60)) net_.listErrors = {EPERM};
    net_.addressListFails = happens(60);
    net_.addressListIsEmpty = happens(60);
    // More interfaces than there were at the question for the list's size, up to twice.
    net_.foreignBytes = 0;
    net_.growthAfterSizeQuestions.clear();
    if (chance_.oneIn(30)) {
        net_.growthAfterSizeQuestions = {4 + chance_.below(99'999), 4 + chance_.below(99'999)};
    }
    bool hasMessages = false;
    bool isAnyListed = false;
    for (Interface& interface : net_.interfaces) {
        interface.hasName = !interface.hasMessage || !happens(100);
        hasMessages = hasMessages || interface.hasMessage;
        isAnyListed = isAnyListed || (interface.isListed &&
                                      (interface.hasLinkEntry || !interface.addresses.empty()));
    }
    return isAnswered && hasMessages && isAnyListed;
}

void NetworkSequence::passTime() {
    switch (chance_.below(30)) {
        case 0:
            return;  // asked twice in a moment
        case 1:
            uptime_ -= static_cast<double>(chance_.below(100)) / 8;
            return;
        case 2:
            uptime_ += static_cast<double>(chance_.ofAnySize(24));
            return;
        default:
            uptime_ += static_cast<double>(1 + chance_.below(4000)) / 1024;
    }
}

NetworkOracle::Reading NetworkSequence::truth(bool isAnswered) const {
    NetworkOracle::Reading reading;
    reading.isAnswered = isAnswered;
    reading.uptime = uptime_;
    reading.includePointToPoint = includePointToPoint_;
    reading.primary = primary_;
    reading.hostName = machine_->processInfo().host;
    for (const Interface& interface : net_.interfaces) {
        const bool hasEntry = interface.hasLinkEntry || !interface.addresses.empty();
        if (!interface.isListed || !hasEntry || !isEligible(interface.flags)) continue;
        NetworkOracle::Interface& told = reading.interfaces.emplace_back();
        told.name = interface.name;
        told.isPointToPoint = (interface.flags & InterfaceCalls::pointToPoint) != 0;
        if (interface.hasLinkEntry && interface.hasMessage) {
            told.number = interface.index;
            told.received = interface.received;
            told.sent = interface.sent;
        } else if (interface.hasLinkEntry && interface.linkData) {
            told.received = interface.linkData->received;
            told.sent = interface.linkData->sent;
        }
        for (const auto& address : interface.addresses) {
            if (!address.isFormattable) continue;
            (address.family == Family::ipv4 ? told.ipv4 : told.ipv6).push_back(address.text);
        }
    }
    return reading;
}

std::optional<std::string> NetworkSequence::step() {
    transfer();
    if (chance_.oneIn(12)) addOrRemove();
    if (chance_.oneIn(25)) exchange();
    if (!net_.interfaces.empty() && chance_.oneIn(3)) {
        changeInterface(net_.interfaces[chance_.placeIn(net_.interfaces)]);
    }
    if (chance_.oneIn(15)) changePrimary();
    if (chance_.oneIn(15))
        machine_->processInfo().host = "host-" + std::to_string(chance_.below(9));
    if (chance_.oneIn(20)) includePointToPoint_ = !includePointToPoint_;
    passTime();
    const bool isAnswered = failAtTimes();
    if (chance_.oneIn(60)) {
        reader_.resetDeltas();
        oracle_.forget();
    }
    oracle_.hear(truth(isAnswered));
    const NetworkStats* const actual = reader_.read(includePointToPoint_, uptime_);
    if (net_.addressListsOutstanding != 0) return "a list of addresses was not given back";
    return oracle_.judge(actual);
}

}  // namespace vantor

#include "platform/linux/network/linux_network_interfaces.h"

#include <net/if.h>

#include <algorithm>
#include <span>

#include "platform/linux/network/address_text.h"

namespace vantor {

namespace {

using InterfaceList = NetworkInterfaces::List;

constexpr int readingsPerWholeOne = 60;

bool isLinkLocal(const LinkSource::Address& address) {
    return address.isIPv6 && address.bytes[0] == 0xFE && (address.bytes[1] & 0xC0) == 0x80;
}

void addLink(const LinkSource::Link& link, InterfaceList& list) {
    NetworkInterfaces::Record& record = list.add();
    record.reset(link.name);
    record.index = link.index;
    record.isUp = (link.flags & IFF_UP) != 0;
    record.isRunning = (link.flags & IFF_RUNNING) != 0;
    record.isLoopback = (link.flags & IFF_LOOPBACK) != 0;
    record.isPointToPoint = (link.flags & IFF_POINTOPOINT) != 0;
    if (link.hasCounters)
        record.counters = NetworkInterfaces::Counters{link.receivedBytes, link.sentBytes};
}

/// The place of the link with that index; the size of the list when there is none. The kernel lists
/// addresses in the order of their links, so it is found at `start` or soon behind it.
std::size_t placeOf(std::uint32_t index, std::size_t start, const InterfaceList& list) {
    for (std::size_t place = start; place < list.size(); ++place) {
        if (list[place].index == index) return place;
    }
    for (std::size_t place = 0; place < start; ++place) {
        if (list[place].index == index) return place;
    }
    return list.size();
}

void addAddress(const LinkSource::Address& address, NetworkInterfaces::Record& record) {
    AddressText room;
    NetworkInterfaces::Address& added = record.addresses.add();
    added.isIPv6 = address.isIPv6;
    added.text = address.isIPv6 ? ipv6Text(address.bytes, room)
                                : ipv4Text(std::span(address.bytes).first<4>(), room);
    if (isLinkLocal(address)) added.text.append("%").append(record.name);
}

}  // namespace

bool LinuxNetworkInterfaces::read(List& list) {
    // Asked first: what changes from here on is found by the next reading.
    const bool mayBeOthers = source_->mayHaveChanged() || !isKnown_;
    const bool isDue = ++readingsSinceAll_ >= readingsPerWholeOne;
    if (!mayBeOthers && !isDue && source_->counters(links_)) {
        takeCounters();
    } else {
        readingsSinceAll_ = 0;
        isKnown_ = readAll();
    }
    if (!isKnown_) return false;
    list.clear();
    for (const Record& record : known_)
        list.add() = record;
    return true;
}

bool LinuxNetworkInterfaces::readAll() {
    if (!source_->links(links_) || !source_->addresses(addresses_)) return false;
    const auto hasCounters = [](const LinkSource::Link& link) { return link.hasCounters; };
    if (std::none_of(links_.begin(), links_.end(), hasCounters)) return false;
    known_.clear();
    for (const LinkSource::Link& link : links_)
        addLink(link, known_);
    std::size_t place = 0;
    for (const LinkSource::Address& address : addresses_) {
        const std::size_t found = placeOf(address.index, place, known_);
        if (found == known_.size()) continue;
        place = found;
        addAddress(address, known_[place]);
    }
    return true;
}

void LinuxNetworkInterfaces::takeCounters() {
    for (std::size_t place = 0; place < links_.size(); ++place) {
        const LinkSource::Link& link = links_[place];
        if (link.hasCounters) known_[place].counters = {link.receivedBytes, link.sentBytes};
    }
}

}  // namespace vantor

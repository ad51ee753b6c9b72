#include "platform/linux/linux_network_interfaces.h"

#include <net/if.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <utility>

#include "platform/interface_message.h"
#include "platform/linux/address_text.h"

namespace vantor {

// The flags are handed through as the kernel has them.
static_assert(NetworkInterfaces::up == IFF_UP && NetworkInterfaces::loopback == IFF_LOOPBACK &&
              NetworkInterfaces::pointToPoint == IFF_POINTOPOINT &&
              NetworkInterfaces::running == IFF_RUNNING);

namespace {

/// Copies `text` with a zero byte behind it; false when it does not fit.
bool copyName(std::string_view text, std::span<char> to) {
    if (text.size() >= to.size()) return false;
    std::copy(text.begin(), text.end(), to.begin());
    to[text.size()] = '\0';
    return true;
}

bool isLinkLocal(const LinkSource::Address& address) {
    return address.isIPv6 && address.bytes[0] == 0xFE && (address.bytes[1] & 0xC0) == 0x80;
}

}  // namespace

int LinuxNetworkInterfaces::sysctl(std::span<const int> path, std::span<std::byte> buffer,
                                   std::size_t& size) {
    if (!std::ranges::equal(path, interface_message::path)) return ENOENT;
    const bool asksForSize = buffer.empty();
    const bool isFresh = std::exchange(isFreshForMessages_, false);
    if ((asksForSize || !isFresh) && !dumpLinks()) return EIO;
    size = messagesSize();
    isFreshForMessages_ = asksForSize;
    if (asksForSize) return 0;
    if (buffer.size() < size) return ENOMEM;
    writeMessages(buffer);
    return 0;
}

bool LinuxNetworkInterfaces::dumpLinks() {
    isFreshForAddresses_ = source_->links(links_);
    if (!isFreshForAddresses_) links_.clear();
    numbers_.assign(links_);
    return isFreshForAddresses_;
}

std::size_t LinuxNetworkInterfaces::messagesSize() const {
    std::size_t size = 0;
    for (std::size_t place = 0; place < links_.size(); ++place) {
        if (links_[place].hasCounters && numbers_.number(place) != 0)
            size += interface_message::size;
    }
    return size;
}

void LinuxNetworkInterfaces::writeMessages(std::span<std::byte> buffer) const {
    for (std::size_t place = 0; place < links_.size(); ++place) {
        const LinkSource::Link& link = links_[place];
        const std::uint16_t number = numbers_.number(place);
        if (!link.hasCounters || number == 0) continue;
        writeInterfaceMessage(buffer, number, link.receivedBytes, link.sentBytes);
        buffer = buffer.subspan(interface_message::size);
    }
}

bool LinuxNetworkInterfaces::indexToName(std::uint32_t index, std::span<char> name) {
    const auto place = numbers_.placeOfNumber(index);
    return place && copyName(links_[*place].name, name);
}

std::optional<std::span<const NetworkInterfaces::Entry>> LinuxNetworkInterfaces::getifaddrs() {
    if (!isFreshForAddresses_ && !dumpLinks()) return std::nullopt;
    isFreshForAddresses_ = false;
    if (!source_->addresses(addresses_)) return std::nullopt;
    entries_.clear();
    for (const LinkSource::Link& link : links_) {
        Entry& entry = entries_.emplace_back();
        entry.name = link.name.c_str();
        entry.flags = link.flags;
        entry.family = Family::link;
    }
    for (const LinkSource::Address& address : addresses_)
        addEntry(address);
    return entries_;
}

void LinuxNetworkInterfaces::addEntry(const LinkSource::Address& address) {
    const auto place = numbers_.placeOfIndex(address.index);
    if (!place) return;
    Entry& entry = entries_.emplace_back();
    entry.name = links_[*place].name.c_str();
    entry.flags = links_[*place].flags;
    entry.family = address.isIPv6 ? Family::ipv6 : Family::ipv4;
    entry.address = address.bytes;
    entry.scope = isLinkLocal(address) ? address.index : 0;
}

bool LinuxNetworkInterfaces::numericHost(const Entry& entry, std::span<char> text) {
    AddressText room;
    std::string_view numbers;
    if (entry.family == Family::ipv4) {
        numbers = ipv4Text(std::span(entry.address).first<4>(), room);
    } else if (entry.family == Family::ipv6) {
        numbers = ipv6Text(entry.address, room);
    } else {
        return false;
    }
    if (!copyName(numbers, text)) return false;
    if (entry.scope == 0 || !entry.name) return true;
    const auto rest = text.subspan(numbers.size());
    if (!copyName(entry.name, rest.subspan(1))) return false;
    rest[0] = '%';
    return true;
}

}  // namespace vantor

#include "platform/macos/network/mac_interface_calls.h"

#include <ifaddrs.h>
#include <net/if.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/sysctl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/macos/network/interface_entry.h"

namespace vantor {

namespace {

using Entry = InterfaceCalls::Entry;

/// Addresses in the library's list need not be aligned for their kind.
template <class Address>
Address copyOf(const sockaddr* address) {
    Address copy{};
    std::memcpy(&copy, address, std::min<std::size_t>(sizeof copy, address->sa_len));
    return copy;
}

void takeAddress(Entry& entry, const sockaddr* address) {
    if (entry.family == InterfaceCalls::Family::ipv4) {
        const auto internet = copyOf<sockaddr_in>(address);
        std::memcpy(entry.address.data(), &internet.sin_addr, sizeof internet.sin_addr);
    } else if (entry.family == InterfaceCalls::Family::ipv6) {
        const auto internet = copyOf<sockaddr_in6>(address);
        std::memcpy(entry.address.data(), &internet.sin6_addr, sizeof internet.sin6_addr);
        entry.scope = internet.sin6_scope_id;
        separateScope(entry);
    }
}

Entry entryOf(const ifaddrs& found) {
    Entry entry;
    entry.name = found.ifa_name;
    entry.flags = found.ifa_flags;
    if (!found.ifa_addr) return entry;
    entry.family = familyOf(found.ifa_addr->sa_family);
    takeAddress(entry, found.ifa_addr);
    if (entry.family == InterfaceCalls::Family::link && found.ifa_data) {
        if_data data{};
        std::memcpy(&data, found.ifa_data, sizeof data);
        entry.linkData = InterfaceCalls::LinkData{data.ifi_ibytes, data.ifi_obytes};
    }
    return entry;
}

template <class Address>
bool writeNumbers(const Address& address, std::span<char> text) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the call's own convention
    return ::getnameinfo(reinterpret_cast<const sockaddr*>(&address), sizeof address, text.data(),
                         static_cast<socklen_t>(text.size()), nullptr, 0, NI_NUMERICHOST) == 0;
}

}  // namespace

MacInterfaceCalls::~MacInterfaceCalls() {
    MacInterfaceCalls::freeifaddrs();
}

int MacInterfaceCalls::sysctl(std::span<const int> path, std::span<std::byte> buffer,
                              std::size_t& size) {
    std::array<int, CTL_MAXNAME> name{};
    if (path.size() > name.size()) return EINVAL;
    std::copy(path.begin(), path.end(), name.begin());
    std::size_t count = buffer.size();
    void* const value = buffer.empty() ? nullptr : buffer.data();
    if (::sysctl(name.data(), static_cast<u_int>(path.size()), value, &count, nullptr, 0) != 0) {
        return errno;
    }
    size = count;
    return 0;
}

bool MacInterfaceCalls::indexToName(std::uint32_t index, std::span<char> name) {
    // The call asks no size and may write this much.
    return name.size() >= IF_NAMESIZE && ::if_indextoname(index, name.data()) != nullptr;
}

std::optional<std::span<const InterfaceCalls::Entry>> MacInterfaceCalls::getifaddrs() {
    freeifaddrs();
    if (::getifaddrs(&list_) != 0) {
        list_ = nullptr;
        return std::nullopt;
    }
    if (!list_) return std::nullopt;
    for (const ifaddrs* found = list_; found; found = found->ifa_next)
        entries_.push_back(entryOf(*found));
    return entries_;
}

void MacInterfaceCalls::freeifaddrs() {
    entries_.clear();
    if (list_) ::freeifaddrs(std::exchange(list_, nullptr));
}

bool MacInterfaceCalls::numericHost(const Entry& entry, std::span<char> text) {
    if (entry.family == Family::ipv4) {
        sockaddr_in address{};
        address.sin_len = sizeof address;
        address.sin_family = AF_INET;
        std::memcpy(&address.sin_addr, entry.address.data(), sizeof address.sin_addr);
        return writeNumbers(address, text);
    }
    if (entry.family != Family::ipv6) return false;
    sockaddr_in6 address{};
    address.sin6_len = sizeof address;
    address.sin6_family = AF_INET6;
    address.sin6_scope_id = entry.scope;
    std::memcpy(&address.sin6_addr, entry.address.data(), sizeof address.sin6_addr);
    return writeNumbers(address, text);
}

}  // namespace vantor

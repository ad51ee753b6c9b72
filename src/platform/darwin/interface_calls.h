#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace vantor {

/// The calls that a Mac's interfaces are read by: their counters, names and addresses. One thread
/// at a time.
///
/// macOS: sysctl with the routing table's path, if_indextoname, getifaddrs, getnameinfo.
class InterfaceCalls {
  public:
    enum class Family { none, link, ipv4, ipv6, other };

    /// 32-bit counters, as the address list carries them.
    struct LinkData {
        std::uint32_t received = 0;
        std::uint32_t sent = 0;
    };

    /// One entry of the address list. An interface has several: one for its link, one for each
    /// address.
    struct Entry {
        const char* name = nullptr;  ///< null when the entry has none; ends with a zero byte
        std::uint32_t flags = 0;     ///< see the constants below
        Family family = Family::none;
        std::optional<LinkData> linkData;           ///< of a link entry that carries it
        std::array<std::uint8_t, 16> address = {};  ///< IPv4 in the first four bytes
        std::uint32_t scope = 0;                    ///< IPv6 scope; 0 = none
    };
    static constexpr std::uint32_t up = 0x1;
    static constexpr std::uint32_t loopback = 0x8;
    static constexpr std::uint32_t pointToPoint = 0x10;
    static constexpr std::uint32_t running = 0x40;

    virtual ~InterfaceCalls() = default;

    /// The shape of sysctl: returns 0 and sets `size` to the value's size, or returns an errno
    /// value. An empty buffer only asks for the size; one that is too small returns ENOMEM. The
    /// path {4, 17, 0, 0, 6, 0} is the list of interfaces with their 64-bit counters, as messages.
    virtual int sysctl(std::span<const int> path, std::span<std::byte> buffer,
                       std::size_t& size) = 0;

    /// The name of the interface with that index, ended by a zero byte; false when there is none.
    virtual bool indexToName(std::uint32_t index, std::span<char> name) = 0;

    /// All entries, until freeifaddrs; absent when the call failed, which then needs no free.
    virtual std::optional<std::span<const Entry>> getifaddrs() = 0;
    virtual void freeifaddrs() = 0;

    /// The entry's address as numbers, ended by a zero byte; a link-local IPv6 address carries its
    /// scope ("fe80::1%eth0"). False when it cannot be formatted.
    virtual bool numericHost(const Entry& entry, std::span<char> text) = 0;
};

}  // namespace vantor

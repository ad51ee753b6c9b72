#pragma once

#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace vantor {

using Bytes = std::vector<std::byte>;

inline Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

template <class T>
Bytes bytesOf(const T& value) {
    Bytes bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

inline Bytes bytesOf(std::string_view text) {
    Bytes bytes(text.size());
    if (!text.empty()) std::memcpy(bytes.data(), text.data(), text.size());
    return bytes;
}

inline Bytes padded(Bytes bytes) {
    bytes.resize((bytes.size() + 3) & ~std::size_t{3});
    return bytes;
}

inline Bytes attribute(int type, const Bytes& value) {
    const rtattr header{static_cast<std::uint16_t>(sizeof(rtattr) + value.size()),
                        static_cast<std::uint16_t>(type)};
    return padded(bytesOf(header) + value);
}

inline Bytes netlinkMessage(int type, std::uint32_t sequence, const Bytes& payload, int flags = 0) {
    nlmsghdr header{};
    header.nlmsg_len = static_cast<std::uint32_t>(sizeof header + payload.size());
    header.nlmsg_type = static_cast<std::uint16_t>(type);
    header.nlmsg_flags = static_cast<std::uint16_t>(NLM_F_MULTI | flags);
    header.nlmsg_seq = sequence;
    return padded(bytesOf(header) + payload);
}

inline Bytes linkHeader(int index, unsigned flags) {
    ifinfomsg header{};
    header.ifi_index = index;
    header.ifi_flags = flags;
    return bytesOf(header);
}

inline Bytes statisticsHeader(std::uint32_t index) {
    if_stats_msg header{};
    header.ifindex = index;
    return bytesOf(header);
}

/// Packets, packets, bytes, bytes, and what kernels have added since.
template <class Counter>
Bytes linkCounters(Counter received, Counter sent, std::size_t count = 24) {
    std::vector<Counter> counters(count, Counter{1111});
    if (count > 2) counters[2] = received;
    if (count > 3) counters[3] = sent;
    Bytes bytes(count * sizeof(Counter));
    if (count > 0) std::memcpy(bytes.data(), counters.data(), bytes.size());
    return bytes;
}

inline Bytes linkName(std::string_view name) {
    return attribute(IFLA_IFNAME, bytesOf(name) + Bytes(1));
}

/// Of a default route in the main table.
inline rtmsg routeHeader(int family) {
    rtmsg header{};
    header.rtm_family = static_cast<std::uint8_t>(family);
    header.rtm_table = RT_TABLE_MAIN;
    header.rtm_type = RTN_UNICAST;
    return header;
}

inline Bytes addressHeader(int family, unsigned index) {
    ifaddrmsg header{};
    header.ifa_family = static_cast<std::uint8_t>(family);
    header.ifa_index = index;
    return bytesOf(header);
}

}  // namespace vantor

#include "platform/linux/network/netlink_messages.h"

#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstring>
#include <optional>

namespace vantor {

namespace {

using MessageBytes = std::span<const std::byte>;

constexpr std::size_t netlinkMessagesLongestName = 15;

/// The kernel's structures lie in the datagram at any address: they are copied out.
template <class T>
std::optional<T> readAt(MessageBytes bytes, std::size_t offset = 0) {
    if (offset > bytes.size() || bytes.size() - offset < sizeof(T)) return std::nullopt;
    T value;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

constexpr std::size_t alignedLength(std::size_t length) {
    return (length + 3) & ~std::size_t{3};
}

/// Moves past `length` bytes and the padding to the next multiple of four, which the last one of a
/// list may lack.
MessageBytes past(MessageBytes bytes, std::size_t length) {
    return bytes.subspan(std::min(alignedLength(length), bytes.size()));
}

/// Calls `visit(type, value)` for each attribute; false when they are malformed.
template <class Visit>
bool forEachAttribute(MessageBytes rest, Visit visit) {
    const std::byte* at = rest.data();
    std::size_t left = rest.size();
    while (left > 0) {
        rtattr header;
        if (left < sizeof header) return false;
        std::memcpy(&header, at, sizeof header);
        const std::size_t length = header.rta_len;
        if (length < sizeof header || length > left) return false;
        visit(header.rta_type & NLA_TYPE_MASK,
              MessageBytes(at + sizeof header, length - sizeof header));
        const std::size_t step = std::min(alignedLength(length), left);
        at += step;
        left -= step;
    }
    return true;
}

void readName(MessageBytes value, std::string& name) {
    const auto end = std::find(value.begin(), value.end(), std::byte{0});
    const auto length = static_cast<std::size_t>(end - value.begin());
    if (length > netlinkMessagesLongestName) return;
    name.resize(length);
    std::memcpy(name.data(), value.data(), length);
}

/// Kernels append fields to the statistics; the byte counts have always been the third and fourth.
template <class Counter>
bool readCounters(MessageBytes value, LinkSource::Link& link) {
    const auto received = readAt<Counter>(value, 2 * sizeof(Counter));
    const auto sent = readAt<Counter>(value, 3 * sizeof(Counter));
    if (!received || !sent) return false;
    link.receivedBytes = *received;
    link.sentBytes = *sent;
    link.hasCounters = true;
    return true;
}

std::uint32_t numberIn(MessageBytes value) {
    return readAt<std::uint32_t>(value).value_or(0);
}

/// The interface of the first hop that is alive; 0 when there is none.
std::uint32_t firstHop(MessageBytes rest) {
    while (const auto hop = readAt<rtnexthop>(rest)) {
        if (hop->rtnh_len < sizeof(rtnexthop) || hop->rtnh_len > rest.size()) return 0;
        if ((hop->rtnh_flags & RTNH_F_DEAD) == 0) {
            return static_cast<std::uint32_t>(hop->rtnh_ifindex);
        }
        rest = past(rest, hop->rtnh_len);
    }
    return 0;
}

}  // namespace

NetlinkMessages::Step NetlinkMessages::next(NetlinkMessage& message) {
    if (rest_.empty()) return Step::end;
    const auto header = readAt<nlmsghdr>(rest_);
    if (!header || header->nlmsg_len < sizeof(nlmsghdr) || header->nlmsg_len > rest_.size()) {
        return Step::malformed;
    }
    message.type = header->nlmsg_type;
    message.flags = header->nlmsg_flags;
    message.sequence = header->nlmsg_seq;
    message.payload = rest_.subspan(sizeof(nlmsghdr), header->nlmsg_len - sizeof(nlmsghdr));
    rest_ = past(rest_, header->nlmsg_len);
    return Step::message;
}

bool parseLink(MessageBytes payload, LinkSource::Link& link) {
    const auto header = readAt<ifinfomsg>(payload);
    if (!header) return false;
    link.index = static_cast<std::uint32_t>(header->ifi_index);
    link.flags = header->ifi_flags;
    link.receivedBytes = 0;
    link.sentBytes = 0;
    link.hasCounters = false;
    link.name.clear();
    bool hasWideCounters = false;
    return forEachAttribute(past(payload, sizeof(ifinfomsg)), [&](int type, MessageBytes value) {
        if (type == IFLA_IFNAME) {
            readName(value, link.name);
        } else if (type == IFLA_STATS64) {
            hasWideCounters |= readCounters<std::uint64_t>(value, link);
        } else if (type == IFLA_STATS && !hasWideCounters) {
            readCounters<std::uint32_t>(value, link);
        }
    });
}

AddressVerdict parseAddress(MessageBytes payload, LinkSource::Address& address) {
    const auto header = readAt<ifaddrmsg>(payload);
    if (!header) return AddressVerdict::malformed;
    address = {};
    address.index = header->ifa_index;
    address.isIPv6 = header->ifa_family == AF_INET6;
    address.isLinkScope = header->ifa_scope == RT_SCOPE_LINK;
    const std::size_t size = address.isIPv6 ? 16 : 4;
    MessageBytes local;
    MessageBytes other;
    const bool isWhole =
        forEachAttribute(past(payload, sizeof(ifaddrmsg)), [&](int type, MessageBytes value) {
            if (value.size() != size) return;
            if (type == IFA_LOCAL) local = value;
            if (type == IFA_ADDRESS) other = value;
        });
    if (!isWhole) return AddressVerdict::malformed;
    if (!address.isIPv6 && header->ifa_family != AF_INET) return AddressVerdict::notOurs;
    const MessageBytes bytes = local.empty() ? other : local;
    if (bytes.empty()) return AddressVerdict::notOurs;
    std::memcpy(address.bytes.data(), bytes.data(), bytes.size());
    return AddressVerdict::address;
}

bool parseRoute(MessageBytes payload, RouteSource::Route& route) {
    const auto header = readAt<rtmsg>(payload);
    if (!header) return false;
    route = {};
    route.family = header->rtm_family;
    route.table = header->rtm_table;
    constexpr unsigned unusable = RTNH_F_DEAD | RTM_F_CLONED;
    const bool isUsable = header->rtm_type == RTN_UNICAST && (header->rtm_flags & unusable) == 0;
    route.isDefault = isUsable && header->rtm_dst_len == 0;
    return forEachAttribute(past(payload, sizeof(rtmsg)), [&](int type, MessageBytes value) {
        if (type == RTA_TABLE) {
            route.table = numberIn(value);
        } else if (type == RTA_PRIORITY) {
            route.metric = numberIn(value);
        } else if (type == RTA_OIF) {
            route.index = numberIn(value);
        } else if (type == RTA_MULTIPATH) {
            route.index = firstHop(value);
        }
    });
}

}  // namespace vantor

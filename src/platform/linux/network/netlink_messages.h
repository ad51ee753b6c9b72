#pragma once

#include <linux/netlink.h>
#include <linux/rtnetlink.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>

namespace vantor {

using NetlinkBytes = std::span<const std::byte>;

/// A message of a netlink datagram (linux/netlink.h), its header taken apart.
struct NetlinkMessage {
    std::uint16_t type = 0;
    std::uint16_t flags = 0;
    std::uint32_t sequence = 0;
    NetlinkBytes payload;  ///< within the datagram
};

/// Walks the messages of one datagram. Pure.
class NetlinkMessages {
  public:
    enum class Step { message, end, malformed };

    explicit NetlinkMessages(NetlinkBytes datagram) : rest_(datagram) {}

    /// After `end` or `malformed` there is nothing more.
    Step next(NetlinkMessage& message);

  private:
    NetlinkBytes rest_;
};

/// A structure of the kernel's, which lies in the datagram at any address: it is copied out. Absent
/// when it is cut. Pure, as the others here.
template <class T>
std::optional<T> readNetlink(NetlinkBytes bytes, std::size_t offset = 0) {
    if (offset > bytes.size() || bytes.size() - offset < sizeof(T)) return std::nullopt;
    T value;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

constexpr std::size_t netlinkAligned(std::size_t length) {
    return (length + 3) & ~std::size_t{3};
}

/// What follows `length` bytes and the padding to the next multiple of four, which the last one of
/// a list may lack.
inline NetlinkBytes pastNetlink(NetlinkBytes bytes, std::size_t length) {
    return bytes.subspan(std::min(netlinkAligned(length), bytes.size()));
}

/// Calls `visit(type, value)` for each attribute; false when they are malformed.
template <class Visit>
bool forEachNetlinkAttribute(NetlinkBytes rest, Visit visit) {
    const std::byte* at = rest.data();
    std::size_t left = rest.size();
    while (left > 0) {
        rtattr header;
        if (left < sizeof header) return false;
        std::memcpy(&header, at, sizeof header);
        const std::size_t length = header.rta_len;
        if (length < sizeof header || length > left) return false;
        visit(header.rta_type & NLA_TYPE_MASK,
              NetlinkBytes(at + sizeof header, length - sizeof header));
        const std::size_t step = std::min(netlinkAligned(length), left);
        at += step;
        left -= step;
    }
    return true;
}

inline NetlinkMessages::Step NetlinkMessages::next(NetlinkMessage& message) {
    if (rest_.empty()) return Step::end;
    const auto header = readNetlink<nlmsghdr>(rest_);
    if (!header || header->nlmsg_len < sizeof(nlmsghdr) || header->nlmsg_len > rest_.size()) {
        return Step::malformed;
    }
    message.type = header->nlmsg_type;
    message.flags = header->nlmsg_flags;
    message.sequence = header->nlmsg_seq;
    message.payload = rest_.subspan(sizeof(nlmsghdr), header->nlmsg_len - sizeof(nlmsghdr));
    rest_ = pastNetlink(rest_, header->nlmsg_len);
    return Step::message;
}

}  // namespace vantor

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/linux/network/link_notices.h"
#include "platform/linux/network/netlink_dump.h"

namespace vantor {

/// The kernel's network links and their addresses. One thread at a time.
class LinkSource {
  public:
    struct Link {
        std::uint32_t index = 0;
        std::uint32_t flags = 0;  ///< IFF_ bits as the kernel has them
        std::uint64_t receivedBytes = 0;
        std::uint64_t sentBytes = 0;
        bool hasCounters = false;
        std::string name;

        bool operator==(const Link&) const = default;
    };
    struct Address {
        std::uint32_t index = 0;  ///< of its link
        bool isIPv6 = false;
        std::array<std::uint8_t, 16> bytes = {};  ///< IPv4 in the first four

        bool operator==(const Address&) const = default;
    };

    virtual ~LinkSource() = default;

    /// Replaces the content of the list, whose storage is reused; false when the call failed.
    virtual bool links(std::vector<Link>& list) = 0;
    virtual bool addresses(std::vector<Address>& list) = 0;

    /// Whether links or addresses may be others than they were at the last call, which is then to
    /// be found out by the lists. True at the first call.
    virtual bool mayHaveChanged() = 0;

    /// The byte counts of these links anew, and nothing else of them: by far cheaper than `links`.
    /// False, with any counts, when they cannot be had so, or when the kernel has other links.
    virtual bool counters(std::span<Link> list) = 0;
};

/// Reads the payload of an RTM_NEWLINK: index, name, flags, and the 64-bit counters or else the
/// 32-bit ones. False when it is cut or malformed. A name that no link can have comes out empty.
/// Pure; replaces all of `link`, reusing its storage.
bool parseLink(std::span<const std::byte> payload, LinkSource::Link& link);

/// Reads the payload of an RTM_NEWSTATS: index and 64-bit counters, the other members stay. False
/// when it is cut or malformed, or has no such counters. Pure.
bool parseLinkCounters(std::span<const std::byte> payload, LinkSource::Link& link);

enum class AddressVerdict { address, notOurs, malformed };

/// Reads the payload of an RTM_NEWADDR: the machine's own end of the link (IFA_LOCAL), else
/// IFA_ADDRESS, which on a point-to-point link is the other end. `notOurs` is another family, or an
/// address without its bytes. Pure; replaces all of `address`.
AddressVerdict parseAddress(std::span<const std::byte> payload, LinkSource::Address& address);

/// From netlink, over sockets that are opened when first asked and kept. Counters by themselves
/// come from Linux 4.7 on.
std::shared_ptr<LinkSource> makeLiveLinkSource(
    NetlinkDump::OpenSocket openSocket = NetlinkDump::openRouteSocket,
    LinkNotices::OpenSocket openNotices = LinkNotices::openGroupSocket);

}  // namespace vantor

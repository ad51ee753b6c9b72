#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

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
        bool isLinkScope = false;

        bool operator==(const Address&) const = default;
    };

    virtual ~LinkSource() = default;

    /// Replaces the content of the list, whose storage is reused; false when the call failed.
    virtual bool links(std::vector<Link>& list) = 0;
    virtual bool addresses(std::vector<Address>& list) = 0;
};

/// From netlink, over a socket that is opened when first asked and kept.
std::shared_ptr<LinkSource> makeLiveLinkSource(
    NetlinkDump::OpenSocket openSocket = NetlinkDump::openRouteSocket);

}  // namespace vantor

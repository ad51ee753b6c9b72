#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/linux/network/netlink_dump.h"

namespace vantor {

/// The kernel's routes. One thread at a time.
class RouteSource {
  public:
    struct Route {
        std::uint8_t family = 0;  ///< AF_
        std::uint32_t table = 0;
        std::uint32_t metric = 0;
        std::uint32_t index = 0;  ///< of its interface; 0 = none
        bool isDefault = false;   ///< leads anywhere, is alive and no refusal

        bool operator==(const Route&) const = default;
    };

    virtual ~RouteSource() = default;

    /// The interface of IPv6's default route in the main table, of several that with the lowest
    /// metric, the first where several have it; empty when there is none. False when the call
    /// failed. The loopback carries no default route.
    virtual bool ipv6DefaultInterface(std::string& name) = 0;
};

/// Reads the payload of an RTM_NEWROUTE; of several next hops the first that is alive counts. False
/// when it is cut or malformed. Pure; replaces all of `route`.
bool parseRoute(std::span<const std::byte> payload, RouteSource::Route& route);

/// From netlink, over a socket that is opened when first asked and kept. The text in
/// /proc/net/ipv6_route has the routes of all tables and does not tell which is whose.
///
/// A router's table may have hundreds of thousands, too many for a reading every few seconds: past
/// the first `maxRoutes` nothing is looked at.
std::shared_ptr<RouteSource> makeLiveRouteSource(
    NetlinkDump::OpenSocket openSocket = NetlinkDump::openRouteSocket, int maxRoutes = 8192);

}  // namespace vantor

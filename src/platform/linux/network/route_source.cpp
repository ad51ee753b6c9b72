#include "platform/linux/network/route_source.h"

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/socket.h>

#include <array>
#include <string_view>
#include <utility>

#include "platform/linux/network/netlink_messages.h"

namespace vantor {

namespace {

struct RouteRequest {
    nlmsghdr header{};
    rtmsg body{};
    rtattr attribute{};
    std::uint32_t table = RT_TABLE_MAIN;
};

RouteRequest ipv6RouteRequest() {
    RouteRequest request;
    request.header.nlmsg_type = RTM_GETROUTE;
    request.body.rtm_family = AF_INET6;
    request.attribute.rta_len = sizeof request.attribute + sizeof request.table;
    request.attribute.rta_type = RTA_TABLE;
    return request;
}

std::uint32_t numberIn(NetlinkBytes value) {
    return readNetlink<std::uint32_t>(value).value_or(0);
}

/// The interface of the first hop that is alive; 0 when there is none.
std::uint32_t firstHop(NetlinkBytes rest) {
    while (const auto hop = readNetlink<rtnexthop>(rest)) {
        if (hop->rtnh_len < sizeof(rtnexthop) || hop->rtnh_len > rest.size()) return 0;
        if ((hop->rtnh_flags & RTNH_F_DEAD) == 0) {
            return static_cast<std::uint32_t>(hop->rtnh_ifindex);
        }
        rest = pastNetlink(rest, hop->rtnh_len);
    }
    return 0;
}

class DefaultRouteReceiver : public NetlinkDump::Receiver {
  public:
    DefaultRouteReceiver(std::string& name, int maxRoutes) : name_(name), maxRoutes_(maxRoutes) {}

    /// Nobody waits for the rest of so long a list.
    bool isEnough() const { return taken_ > maxRoutes_; }

    void restart() override {
        name_.clear();
        taken_ = 0;
    }
    bool take(std::uint16_t type, std::span<const std::byte> payload) override {
        if (type != RTM_NEWROUTE) return true;
        ++taken_;
        RouteSource::Route route;
        if (isEnough() || !parseRoute(payload, route)) return false;
        // Kernels before 4.20 send all tables, whatever was asked for.
        const bool isCandidate =
            route.isDefault && route.family == AF_INET6 && route.table == RT_TABLE_MAIN;
        if (!isCandidate || (!name_.empty() && route.metric >= metric_)) return true;
        std::array<char, IF_NAMESIZE> name{};
        if (!::if_indextoname(route.index, name.data())) return true;
        if (std::string_view(name.data()) == "lo") return true;
        name_ = name.data();
        metric_ = route.metric;
        return true;
    }

  private:
    std::string& name_;
    int maxRoutes_;
    std::uint32_t metric_ = 0;
    int taken_ = 0;
};

class LiveRouteSource : public RouteSource {
  public:
    LiveRouteSource(NetlinkDump::OpenSocket openSocket, int maxRoutes)
        : dump_([open = std::move(openSocket)] { return strict(open()); }), maxRoutes_(maxRoutes) {}

    bool ipv6DefaultInterface(std::string& name) override {
        RouteRequest request = ipv6RouteRequest();
        DefaultRouteReceiver receiver(name, maxRoutes_);
        const bool isWhole = dump_.dump(std::as_writable_bytes(std::span{&request, 1}), receiver);
        return isWhole || receiver.isEnough();
    }

  private:
    /// On such a socket the kernel heeds the table of the request.
    static FileDescriptor strict(FileDescriptor socket) {
        constexpr int yes = 1;
        if (socket) {
            ::setsockopt(socket.get(), SOL_NETLINK, NETLINK_GET_STRICT_CHK, &yes, sizeof yes);
        }
        return socket;
    }

    NetlinkDump dump_;
    int maxRoutes_;
};

}  // namespace

bool parseRoute(NetlinkBytes payload, RouteSource::Route& route) {
    const auto header = readNetlink<rtmsg>(payload);
    if (!header) return false;
    route = {};
    route.family = header->rtm_family;
    route.table = header->rtm_table;
    constexpr unsigned unusable = RTNH_F_DEAD | RTM_F_CLONED;
    const bool isUsable = header->rtm_type == RTN_UNICAST && (header->rtm_flags & unusable) == 0;
    route.isDefault = isUsable && header->rtm_dst_len == 0;
    return forEachNetlinkAttribute(pastNetlink(payload, sizeof(rtmsg)),
                                   [&](int type, NetlinkBytes value) {
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

std::shared_ptr<RouteSource> makeLiveRouteSource(NetlinkDump::OpenSocket openSocket,
                                                 int maxRoutes) {
    return std::make_shared<LiveRouteSource>(std::move(openSocket), maxRoutes);
}

}  // namespace vantor

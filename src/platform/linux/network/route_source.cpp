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

std::shared_ptr<RouteSource> makeLiveRouteSource(NetlinkDump::OpenSocket openSocket,
                                                 int maxRoutes) {
    return std::make_shared<LiveRouteSource>(std::move(openSocket), maxRoutes);
}

}  // namespace vantor

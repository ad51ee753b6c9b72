#include "platform/linux/network/linux_primary_interface.h"

#include <utility>

#include "platform/linux/network/route_tables.h"

namespace vantor {

namespace {

/// A router's table may have a million lines, too many for a reading every few seconds. IPv4's
/// default routes come first; IPv6's come behind the networks and are not found behind so many.
constexpr std::size_t routesLimit = std::size_t{1024} * 1024;

}  // namespace

LinuxPrimaryInterface::LinuxPrimaryInterface(const LinuxRoots& roots,
                                             std::shared_ptr<RouteSource> routes)
    : ipv4Routes_(roots.proc / "net/route", routesLimit),
      ipv6Routes_(roots.proc / "net/ipv6_route", routesLimit),
      routes_(std::move(routes)) {}

std::optional<std::string_view> LinuxPrimaryInterface::name() {
    const auto text = ipv4Routes_.read();
    const auto found = text ? ipv4DefaultInterface(*text) : std::nullopt;
    return found ? found : ipv6Name();
}

std::optional<std::string_view> LinuxPrimaryInterface::ipv6Name() {
    if (routes_ && routes_->ipv6DefaultInterface(answeredName_)) {
        if (answeredName_.empty()) return std::nullopt;
        return answeredName_;
    }
    const auto text = ipv6Routes_.read();
    return text ? ipv6DefaultInterface(*text) : std::nullopt;
}

}  // namespace vantor

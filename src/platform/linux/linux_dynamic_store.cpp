#include "platform/linux/linux_dynamic_store.h"

#include <algorithm>
#include <utility>

#include "platform/linux/route_tables.h"

namespace vantor {

namespace {

/// A router's table may have a million lines, too many for a reading every few seconds. IPv4's
/// default routes come first; IPv6's come behind the networks and are not found behind so many.
constexpr std::size_t routesLimit = std::size_t{1024} * 1024;

}  // namespace

LinuxDynamicStore::LinuxDynamicStore(const LinuxRoots& roots, std::shared_ptr<RouteSource> routes)
    : protocols_{
          {{"State:/Network/Global/IPv4", nullptr,
            KernelListFile(roots.proc / "net/route", routesLimit), ipv4DefaultInterface, "", false},
           {"State:/Network/Global/IPv6", std::move(routes),
            KernelListFile(roots.proc / "net/ipv6_route", routesLimit), ipv6DefaultInterface, "",
            false}}} {}

std::optional<std::string_view> LinuxDynamicStore::defaultInterface(Protocol& protocol) {
    if (protocol.source && protocol.source->ipv6DefaultInterface(answeredName_)) {
        if (answeredName_.empty()) return std::nullopt;
        return answeredName_;
    }
    const auto text = protocol.routes.read();
    return text ? protocol.defaultInterface(*text) : std::nullopt;
}

const PropertyValue* LinuxDynamicStore::copyValue(std::string_view key) {
    const auto protocol = std::find_if(protocols_.begin(), protocols_.end(),
                                       [key](const Protocol& p) { return p.key == key; });
    if (protocol == protocols_.end()) return nullptr;
    const auto name = defaultInterface(*protocol);
    if (!name) return nullptr;
    if (protocol->name != *name) {
        protocol->name = *name;
        protocol->value =
            PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue(protocol->name)}});
    }
    return &protocol->value;
}

}  // namespace vantor

#include "platform/linux/linux_dynamic_store.h"

#include <algorithm>

#include "platform/linux/route_tables.h"

namespace vantor {

LinuxDynamicStore::LinuxDynamicStore(const LinuxRoots& roots)
    : protocols_{{{"State:/Network/Global/IPv4", KernelList(roots.proc / "net/route"),
                   ipv4DefaultInterface, "", false},
                  {"State:/Network/Global/IPv6", KernelList(roots.proc / "net/ipv6_route"),
                   ipv6DefaultInterface, "", false}}} {}

const PropertyValue* LinuxDynamicStore::copyValue(std::string_view key) {
    const auto protocol = std::find_if(protocols_.begin(), protocols_.end(),
                                       [key](const Protocol& p) { return p.key == key; });
    if (protocol == protocols_.end()) return nullptr;
    const auto text = protocol->routes.read();
    const auto name = text ? protocol->defaultInterface(*text) : std::nullopt;
    if (!name) return nullptr;
    if (protocol->name != *name) {
        protocol->name = *name;
        protocol->value =
            PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue(protocol->name)}});
    }
    return &protocol->value;
}

}  // namespace vantor

#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/dynamic_store.h"
#include "platform/linux/kernel_list_file.h"
#include "platform/linux/linux_roots.h"
#include "platform/linux/route_source.h"

namespace vantor {

/// The interface of the default route of the main table: IPv4's from /proc/net/route, IPv6's from
/// `routes`, or from /proc/net/ipv6_route, where the other tables' routes count too, when these are
/// null or do not answer. Each dictionary is made once and then again only when the interface is
/// another.
class LinuxDynamicStore : public DynamicStore {
  public:
    explicit LinuxDynamicStore(const LinuxRoots& roots,
                               std::shared_ptr<RouteSource> routes = nullptr);

    const PropertyValue* copyValue(std::string_view key) override;

  private:
    struct Protocol {
        std::string_view key;
        std::shared_ptr<RouteSource> source;  // null: the file alone
        KernelListFile routes;
        std::optional<std::string_view> (*defaultInterface)(std::string_view text);
        std::string name;  // that `value` is made of; empty = none yet
        PropertyValue value;
    };

    std::optional<std::string_view> defaultInterface(Protocol& protocol);

    std::string answeredName_;
    std::array<Protocol, 2> protocols_;
};

}  // namespace vantor

#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/dynamic_store.h"
#include "platform/linux/kernel_list_file.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// The interface of the default route, from /proc/net/route and /proc/net/ipv6_route. Each
/// dictionary is made once and then again only when the interface is another.
class LinuxDynamicStore : public DynamicStore {
  public:
    explicit LinuxDynamicStore(const LinuxRoots& roots);

    const PropertyValue* copyValue(std::string_view key) override;

  private:
    struct Protocol {
        std::string_view key;
        KernelListFile routes;
        std::optional<std::string_view> (*defaultInterface)(std::string_view text);
        std::string name;  // that `value` is made of; empty = none yet
        PropertyValue value;
    };

    std::array<Protocol, 2> protocols_;
};

}  // namespace vantor

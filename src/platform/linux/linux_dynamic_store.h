#pragma once

#include "platform/dynamic_store.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// The interface of the default route, from /proc/net/route and /proc/net/ipv6_route.
class LinuxDynamicStore : public DynamicStore {
  public:
    explicit LinuxDynamicStore(LinuxRoots roots) : roots_(std::move(roots)) {}

    const PropertyValue* copyValue(std::string_view key) override;

  private:
    LinuxRoots roots_;
};

}  // namespace vantor

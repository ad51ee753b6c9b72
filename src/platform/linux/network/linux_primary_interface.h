#pragma once

#include <memory>
#include <string>

#include "platform/linux/files/kernel_list_file.h"
#include "platform/linux/linux_roots.h"
#include "platform/linux/network/route_source.h"
#include "platform/primary_interface.h"

namespace vantor {

/// The interface of the default route of the main table: IPv4's from /proc/net/route, IPv6's from
/// `routes`, or from /proc/net/ipv6_route, where the other tables' routes count too, when these are
/// null or do not answer.
class LinuxPrimaryInterface : public PrimaryInterface {
  public:
    explicit LinuxPrimaryInterface(const LinuxRoots& roots,
                                   std::shared_ptr<RouteSource> routes = nullptr);

    std::optional<std::string_view> name() override;

  private:
    std::optional<std::string_view> ipv6Name();

    KernelListFile ipv4Routes_;
    KernelListFile ipv6Routes_;
    std::shared_ptr<RouteSource> routes_;
    std::string answeredName_;
};

}  // namespace vantor

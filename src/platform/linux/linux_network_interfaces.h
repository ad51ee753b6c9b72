#pragma once

#include <memory>

#include "platform/linux/link_source.h"
#include "platform/network_interfaces.h"

namespace vantor {

/// Interfaces and their addresses from the kernel's dumps, in the shapes of the calls.
class LinuxNetworkInterfaces : public NetworkInterfaces {
  public:
    explicit LinuxNetworkInterfaces(std::shared_ptr<LinkSource> source)
        : source_(std::move(source)) {}

    int sysctl(std::span<const int> path, std::span<std::byte> buffer, std::size_t& size) override;
    bool indexToName(std::uint32_t index, std::span<char> name) override;
    std::optional<std::span<const Entry>> getifaddrs() override;
    void freeifaddrs() override;
    bool numericHost(const Entry& entry, std::span<char> text) override;

  private:
    std::shared_ptr<LinkSource> source_;
};

}  // namespace vantor

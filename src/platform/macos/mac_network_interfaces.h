#pragma once

#include <vector>

#include "platform/network_interfaces.h"

struct ifaddrs;

namespace vantor {

/// The routing table's list of interfaces and the C library's list of addresses. The entries lie in
/// storage of this object and point into the library's list for their names.
class MacNetworkInterfaces : public NetworkInterfaces {
  public:
    MacNetworkInterfaces() = default;
    MacNetworkInterfaces(const MacNetworkInterfaces&) = delete;
    MacNetworkInterfaces& operator=(const MacNetworkInterfaces&) = delete;
    ~MacNetworkInterfaces() override;

    int sysctl(std::span<const int> path, std::span<std::byte> buffer, std::size_t& size) override;
    bool indexToName(std::uint32_t index, std::span<char> name) override;
    std::optional<std::span<const Entry>> getifaddrs() override;
    void freeifaddrs() override;
    bool numericHost(const Entry& entry, std::span<char> text) override;

  private:
    ifaddrs* list_ = nullptr;
    std::vector<Entry> entries_;
};

}  // namespace vantor

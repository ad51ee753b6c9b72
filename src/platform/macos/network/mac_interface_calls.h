#pragma once

#include <vector>

#include "platform/darwin/interface_calls.h"

struct ifaddrs;

namespace vantor {

/// The routing table's list of interfaces and the C library's list of addresses. The entries lie in
/// storage of this object and point into the library's list for their names.
class MacInterfaceCalls : public InterfaceCalls {
  public:
    MacInterfaceCalls() = default;
    MacInterfaceCalls(const MacInterfaceCalls&) = delete;
    MacInterfaceCalls& operator=(const MacInterfaceCalls&) = delete;
    ~MacInterfaceCalls() override;

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

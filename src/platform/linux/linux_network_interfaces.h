#pragma once

#include <memory>
#include <vector>

#include "platform/linux/link_numbers.h"
#include "platform/linux/link_source.h"
#include "platform/network_interfaces.h"

namespace vantor {

/// Interfaces and their addresses from the kernel's dumps, in the shapes of the calls.
///
/// The question for the size of the list takes a dump of the links and keeps it; the list itself,
/// the names of its indices and the next list of addresses are answered from that one, so that
/// names, flags and counters are of one moment. Each of them asks the kernel again when it is
/// called a second time. A link without counters has no message in the list; an address whose link
/// has come since is not there yet.
class LinuxNetworkInterfaces : public NetworkInterfaces {
  public:
    explicit LinuxNetworkInterfaces(std::shared_ptr<LinkSource> source)
        : source_(std::move(source)) {}

    int sysctl(std::span<const int> path, std::span<std::byte> buffer, std::size_t& size) override;
    bool indexToName(std::uint32_t index, std::span<char> name) override;
    std::optional<std::span<const Entry>> getifaddrs() override;
    void freeifaddrs() override {}
    bool numericHost(const Entry& entry, std::span<char> text) override;

  private:
    bool dumpLinks();
    std::size_t messagesSize() const;
    void writeMessages(std::span<std::byte> buffer) const;
    void addEntry(const LinkSource::Address& address);

    std::shared_ptr<LinkSource> source_;
    std::vector<LinkSource::Link> links_;
    LinkNumbers numbers_;
    bool isFreshForMessages_ = false;
    bool isFreshForAddresses_ = false;
    std::vector<LinkSource::Address> addresses_;
    std::vector<Entry> entries_;
};

}  // namespace vantor

#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "platform/linux/network/link_source.h"
#include "platform/network_interfaces.h"

namespace vantor {

/// Interfaces and their addresses from one dump each of the kernel's, so that names, flags and
/// counters are of one moment. An address whose link has come since is not there yet.
class LinuxNetworkInterfaces : public NetworkInterfaces {
  public:
    explicit LinuxNetworkInterfaces(std::shared_ptr<LinkSource> source)
        : source_(std::move(source)) {}

    bool read(List& list) override;

  private:
    std::shared_ptr<LinkSource> source_;
    std::vector<LinkSource::Link> links_;
    std::vector<LinkSource::Address> addresses_;
};

}  // namespace vantor

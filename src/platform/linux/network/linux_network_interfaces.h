#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "platform/linux/network/link_source.h"
#include "platform/network_interfaces.h"

namespace vantor {

/// Interfaces and their addresses from one dump each of the kernel's, so that names, flags and
/// counters are of one moment. An address whose link has come since is not there yet. While the
/// kernel tells of no change, the counters alone are asked for; every sixtieth reading asks for all
/// the same.
class LinuxNetworkInterfaces : public NetworkInterfaces {
  public:
    explicit LinuxNetworkInterfaces(std::shared_ptr<LinkSource> source)
        : source_(std::move(source)) {}

    bool read(List& list) override;

  private:
    bool readAll();
    void takeCounters();

    std::shared_ptr<LinkSource> source_;
    std::vector<LinkSource::Link> links_;
    std::vector<LinkSource::Address> addresses_;
    List known_;  // of all links, each at its place
    bool isKnown_ = false;
    int readingsSinceAll_ = 0;
};

}  // namespace vantor

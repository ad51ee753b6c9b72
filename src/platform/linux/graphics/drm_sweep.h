#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/processes/pid_listing.h"

namespace vantor {

/// An open graphics device of some process.
struct DRMDescriptor {
    std::int32_t pid = 0;
    std::int32_t fd = 0;
    std::string node;  ///< "renderD128"
};

/// Looks through /proc/PID/fd for open graphics devices, of the processes that may be looked into:
/// the user's own. One link is read for each open file of each process, so one sweep takes five
/// seconds of which each step does its share. One thread at a time.
class DRMSweep {
  public:
    /// In seconds.
    static constexpr double period = 5;
    /// A process with more open files than this is looked into up to here.
    static constexpr std::size_t maxFiles = 4096;

    explicit DRMSweep(const std::filesystem::path& proc);

    /// Lets the next step look through everything at once.
    void restart() { startedAt_.reset(); }

    /// Does what is due at `now`, in seconds, and gives what it found; valid until the next step.
    std::span<const DRMDescriptor> step(double now);

  private:
    void begin(double now);
    void lookInto(std::int32_t pid);

    FileDescriptor proc_;
    PIDListing processes_;
    PIDListing files_;
    std::size_t next_ = 0;  // process
    std::optional<double> startedAt_;
    double steppedAt_ = 0;
    std::vector<DRMDescriptor> found_;
};

/// The node that the link of an open file leads to: "card0" for "/dev/dri/card0", whatever stands
/// before "dri" in another mount namespace. Empty for anything else. Pure.
std::string_view graphicsNode(std::string_view link);

}  // namespace vantor

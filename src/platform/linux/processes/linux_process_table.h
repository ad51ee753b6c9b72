#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/linux_roots.h"
#include "platform/linux/processes/pid_tracker.h"
#include "platform/linux/processes/process_clocks.h"
#include "platform/linux/processes/reclaim_watch.h"
#include "platform/process_table.h"

namespace vantor {

/// The processes of /proc, with as few questions as exact figures allow.
///
/// The CPU clock of every process is read at each pass. Its stat file is opened only when it may be
/// another process than before, as its identifier has been assigned anew; where the kernel does not
/// tell, when its clock has moved. The resident size is always that of statm, because stat's is not
/// exact, and is read when the clock has moved: one that did not run did not grow. The kernel may
/// still take memory from a sleeping process. While it does, that figure is read again when it is
/// five seconds old (spread, so that no pass has to read them all; of more than 2,000 processes
/// those below 16 MiB wait until they are 400 a second, at most half a minute). While the kernel
/// tells that it takes none, those below 16 MiB are read again every two minutes, for what it does
/// not tell: other programs may take memory, too. Kernel threads have none.
/// Times are nanoseconds. Where there are no clocks (a recorded machine, another pid namespace),
/// stat is read for all, with its hundredths of a second.
class LinuxProcessTable : public ProcessTable {
  public:
    LinuxProcessTable(const LinuxRoots& roots, std::shared_ptr<ProcessClocks> clocks);

    /// The count makes a listing, which the next call with a buffer hands over.
    int listAllPIDs(std::span<std::int32_t> buffer) override;
    int taskAllInfo(std::int32_t pid, TaskAllInfo& info) override;
    /// Where the executable's link is for another user to read, what the process says of itself
    /// stands in for it, as far as it agrees with the kernel's name.
    int path(std::int32_t pid, std::span<char> buffer) override;
    int name(std::int32_t pid, std::span<char> buffer) override;
    bool mayHaveNewPath(std::int32_t pid) override;
    std::optional<Timebase> timebase() override { return Timebase{1, 1}; }

  private:
    /// What is known of a process; kept in the order of the listing, by ascending pid.
    struct Known {
        std::int32_t pid = 0;
        bool isRead = false;
        bool isGone = false;
        bool hasRunSincePath = true;  // since its path was asked for
        bool isKernelThread = false;
        std::uint64_t clock = 0;  // nanoseconds when last read
        std::uint64_t startTicks = 0;
        std::uint64_t residentBytes = 0;
        double residentDue = 0;  // when the resident size must be read again
    };

    bool refreshListing();
    void watchReclaim();
    void adoptListing();
    Known* find(std::int32_t pid);
    bool update(Known& known, std::optional<std::uint64_t> clock, std::uint64_t& counted);
    bool isTheSame(const Known& known, std::uint64_t clock) const;
    bool readStat(Known& known, std::uint64_t& counted);  // by the kernel's ticks, in nanoseconds
    bool readResident(Known& known);
    double residentPeriodOf(const Known& known) const;
    std::string_view kernelName(std::int32_t pid);
    int claimedPath(std::int32_t pid, std::span<char> buffer);
    int completedName(std::int32_t pid, std::span<char> buffer, std::size_t count);
    std::optional<std::string_view> readFile(std::int32_t pid, std::string_view file);

    FileDescriptor proc_;
    std::shared_ptr<ProcessClocks> clocks_;
    bool clocksFit_;  // /proc is that of the namespace in which the clocks count, and they answer
    PIDTracker tracker_;
    ReclaimWatch reclaim_;
    bool isCalm_ = false;  // the kernel takes no memory from sleeping processes
    bool isListingFresh_ = false;
    double now_ = 0;
    std::vector<Known> known_;
    std::vector<Known> nextKnown_;  // trades places with the former
    std::vector<std::int32_t> gone_;
    std::size_t cursor_ = 0;  // questions come in the order of the listing
    std::vector<char> buffer_;
    bool hasShortage_ = false;  // of descriptors or memory, when a file could not be read
    std::uint64_t pageSize_;
    std::uint64_t ticksPerSecond_;
};

}  // namespace vantor

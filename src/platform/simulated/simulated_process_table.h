#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/process_table.h"

namespace vantor {

/// Processes by script. The members are the script; nothing locks.
class SimulatedProcessTable : public ProcessTable {
  public:
    struct Process {
        std::int32_t pid = 0;
        TaskAllInfo info;
        std::string path;  ///< empty = no path
        std::string name;  ///< empty = no name
        bool isReadable = true;
        bool mayHaveNewPath = true;
    };

    /// In the order of the listing.
    std::vector<Process> processes;

    /// Answers of the listing with and without a buffer instead of the true ones.
    std::optional<int> claimedCount;
    std::optional<int> claimedListed;
    int infoSize = taskAllInfoSize;  ///< returned as the size that taskAllInfo filled
    std::optional<int> claimedPathLength;
    std::optional<int> claimedNameLength;
    std::optional<Timebase> nativeTimebase = Timebase{1, 1};

    /// Runs before each listing into a buffer, so that processes may come and go in between.
    std::function<void()> onList;

    int listings = 0;  ///< those into a buffer
    std::vector<std::size_t> bufferSizes;
    int pathLookups = 0;
    int nameLookups = 0;

    Process& add(std::int32_t pid, std::string path, std::uint64_t resident = 0);
    Process* find(std::int32_t pid);
    void remove(std::int32_t pid);

    /// Adds user time, in native units.
    void spend(std::int32_t pid, std::uint64_t time);

    int listAllPIDs(std::span<std::int32_t> buffer) override;
    int taskAllInfo(std::int32_t pid, TaskAllInfo& info) override;
    int path(std::int32_t pid, std::span<char> buffer) override;
    bool mayHaveNewPath(std::int32_t pid) override;
    int name(std::int32_t pid, std::span<char> buffer) override;
    std::optional<Timebase> timebase() override { return nativeTimebase; }

  private:
    std::size_t cursor_ = 0;  // questions come in the order of the listing
};

}  // namespace vantor

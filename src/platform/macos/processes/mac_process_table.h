#pragma once

#include "platform/process_table.h"

namespace vantor {

/// libproc. Times are in units of mach_absolute_time.
class MacProcessTable : public ProcessTable {
  public:
    int listAllPIDs(std::span<std::int32_t> buffer) override;
    int taskAllInfo(std::int32_t pid, TaskAllInfo& info) override;
    int path(std::int32_t pid, std::span<char> buffer) override;
    /// The kernel does not tell.
    bool mayHaveNewPath(std::int32_t pid) override;
    int name(std::int32_t pid, std::span<char> buffer) override;
    std::optional<Timebase> timebase() override;
};

}  // namespace vantor

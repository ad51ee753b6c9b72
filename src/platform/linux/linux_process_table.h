#pragma once

#include <memory>

#include "platform/linux/linux_roots.h"
#include "platform/linux/process_clocks.h"
#include "platform/process_table.h"

namespace vantor {

class LinuxProcessTable : public ProcessTable {
  public:
    LinuxProcessTable(LinuxRoots roots, std::shared_ptr<ProcessClocks> clocks)
        : roots_(std::move(roots)), clocks_(std::move(clocks)) {}

    int listAllPIDs(std::span<std::int32_t> buffer) override;
    int taskAllInfo(std::int32_t pid, TaskAllInfo& info) override;
    int path(std::int32_t pid, std::span<char> buffer) override;
    int name(std::int32_t pid, std::span<char> buffer) override;
    std::optional<Timebase> timebase() override { return Timebase{1, 1}; }

  private:
    LinuxRoots roots_;
    std::shared_ptr<ProcessClocks> clocks_;
};

}  // namespace vantor

#pragma once

#include <memory>
#include <mutex>
#include <string>

#include "model/system_info_stats.h"
#include "platform/machine.h"

namespace vantor {

/// What the machine is, found out once, and its slow state, read every time.
class SystemInfoReader {
  public:
    explicit SystemInfoReader(std::shared_ptr<Machine> machine) : machine_(std::move(machine)) {}

    /// Never absent. The record stays the reader's own and holds until the next read: one thread at
    /// a time.
    const SystemInfoStats& read();

  private:
    void identify();

    std::shared_ptr<Machine> machine_;
    std::once_flag isIdentified_;
    SystemInfoStats stats_;
};

}  // namespace vantor

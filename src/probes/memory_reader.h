#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

#include "model/memory_stats.h"
#include "platform/machine.h"

namespace vantor {

/// Turns the kernel's page counts into bytes used and available. Keeps nothing but the amount of
/// installed memory, which it finds out once. Any thread, as far as the machine allows it.
class MemoryReader {
  public:
    explicit MemoryReader(std::shared_ptr<Machine> machine) : machine_(std::move(machine)) {}

    /// Absent when the kernel does not answer or a product does not fit into 64 bits.
    std::optional<MemoryStats> read();

  private:
    std::uint64_t installedMemory();

    std::shared_ptr<Machine> machine_;
    std::once_flag installedMemoryIsKnown_;
    std::uint64_t installedMemory_ = 0;
};

}  // namespace vantor

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/file_descriptor.h"

namespace vantor {

/// The process folders of a kept-open /proc, read with getdents64 into a kept buffer. One thread at
/// a time.
class PIDListing {
  public:
    /// Reads the whole folder; false when that failed, and the list is then empty.
    bool read(const FileDescriptor& proc);

    /// Ascending, which is the kernel's own order.
    std::span<const std::int32_t> pids() const { return pids_; }

  private:
    std::vector<std::int32_t> pids_;
    std::unique_ptr<std::byte[]> buffer_;  // not cleared: what is never filled takes no memory
};

/// Appends the process identifiers among the names of a block that getdents64 filled; anything that
/// is malformed ends it. Pure.
void appendPIDs(std::span<const std::byte> entries, std::vector<std::int32_t>& pids);

}  // namespace vantor

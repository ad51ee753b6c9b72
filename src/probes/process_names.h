#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/process_table.h"
#include "probes/process_records.h"

namespace vantor {

/// Finds out what processes are called. One thread at a time.
class ProcessNames {
  public:
    explicit ProcessNames(ProcessTable& table) : table_(table) {}

    /// Looks up name and command of `pid`, keeping the texts of `metadata` that are still right.
    void lookUp(std::int32_t pid, ProcessMetadata& metadata);

  private:
    std::string_view path(std::int32_t pid);
    std::string_view kernelName(std::int32_t pid);

    ProcessTable& table_;
    std::array<char, 4096> pathBuffer_{};
    std::array<char, 1024> nameBuffer_{};
    std::string decoded_;  // what is not UTF-8, mended
};

/// The last piece of `path` between its slashes, empty ones left out; empty when there is none.
std::string_view lastPathComponent(std::string_view path);

}  // namespace vantor

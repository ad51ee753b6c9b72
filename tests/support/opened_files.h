#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "platform/file_descriptor.h"

namespace vantor {

/// Watches a folder and all folders in it, by what the kernel says of them.
class OpenedFiles {
  public:
    explicit OpenedFiles(const std::filesystem::path& folder);

    /// What was opened or read since the last question: "power/runtime_status", and "." or
    /// "hwmon/." for a folder that was listed.
    std::set<std::string> take();

  private:
    void watch(const std::filesystem::path& folder, const std::string& name);

    FileDescriptor queue_;
    std::map<int, std::string> folders_;
};

}  // namespace vantor

#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/linux/file_descriptor.h"

namespace vantor {

/// A list of /proc that the kernel hands over a page at a time, in whole lines: kept open, read
/// from its start to its end into a buffer that is kept too. One thread at a time.
class KernelListFile {
  public:
    explicit KernelListFile(std::filesystem::path path) : path_(std::move(path)) {}

    /// The whole content, valid until the next read; absent when it cannot be opened or read. The
    /// pieces may be of slightly different moments.
    std::optional<std::string_view> read();

  private:
    std::filesystem::path path_;
    FileDescriptor file_;
    std::vector<char> buffer_;
};

}  // namespace vantor

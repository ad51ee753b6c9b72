#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/file_descriptor.h"

namespace vantor {

/// A list of /proc that the kernel hands over a page at a time, however large the buffer: kept
/// open, read from its start to its end into a buffer that is kept too. One thread at a time.
///
/// The pieces may be of slightly different moments. A list longer than the limit is cut there.
class KernelListFile {
  public:
    static constexpr std::size_t largestLimit = std::size_t{16} * 1024 * 1024;

    explicit KernelListFile(std::filesystem::path path, std::size_t limit = largestLimit)
        : path_(std::move(path)), limit_(limit) {}

    /// The content, valid until the next read; absent when it cannot be opened or read.
    std::optional<std::string_view> read();

  private:
    std::filesystem::path path_;
    std::size_t limit_;
    FileDescriptor file_;
    std::vector<char> buffer_;
};

}  // namespace vantor

#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/linux/file_descriptor.h"

namespace vantor {

/// A list of /proc of which the kernel hands over a page at a time, however large the buffer: kept
/// open and read from its start to its end, into a buffer that is kept too. One thread at a time.
///
/// Lines of one reading may be of different moments, and a list longer than `limit` is cut there.
class KernelList {
  public:
    static constexpr std::size_t limit = std::size_t{1024} * 1024;

    explicit KernelList(std::filesystem::path path) : path_(std::move(path)) {}

    /// The content, valid until the next read; absent when it cannot be opened or read.
    std::optional<std::string_view> read();

  private:
    std::filesystem::path path_;
    FileDescriptor file_;
    std::vector<char> buffer_;
};

}  // namespace vantor

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_descriptor.h"

namespace vantor {

/// A small file of /proc or /sys that is read again and again: kept open, read from its start in
/// one call into a buffer that is kept too. One thread at a time.
///
/// Only for files that the kernel hands over in one piece, as /proc/stat and /proc/loadavg. Lists
/// of many records (cpuinfo, mounts) come a page at a time, however large the buffer.
class KernelFile {
  public:
    explicit KernelFile(std::filesystem::path path) : path_(std::move(path)) {}

    /// The whole content, valid until the next read; absent when it cannot be opened or read.
    std::optional<std::string_view> read();

  private:
    bool open();

    std::filesystem::path path_;
    FileDescriptor file_;
    std::vector<char> buffer_;
};

/// As much as is read of any file, in bytes.
constexpr std::size_t kernelFileLargestSize = std::size_t{16} * 1024 * 1024;

/// The content of a file that is read once, its first `most` bytes; absent when it cannot be read.
std::optional<std::string> readKernelFile(const std::filesystem::path& path,
                                          std::size_t most = kernelFileLargestSize);

/// The same of an open file, from where it stands.
std::optional<std::string> readOpenKernelFile(int file, std::size_t most = kernelFileLargestSize);

/// The content without the blanks and line ends around it (device-tree texts end with a zero byte,
/// which goes too); absent when nothing is left. Pure; the text lies within `content`.
std::optional<std::string_view> trimmedText(std::string_view content);

/// That of an attribute, which is a page at most (64 KiB), trimmed.
std::optional<std::string> readKernelText(const std::filesystem::path& path);

}  // namespace vantor

#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

#include "platform/file_descriptor.h"

namespace vantor {

/// A file of /proc or /sys with one short value, opened once and kept open: a read is one call and
/// gives the value of that moment. An open file of /sys keeps no device alive; when the device has
/// gone, reads fail. Reading: any thread.
class SmallFile {
  public:
    explicit SmallFile(const std::filesystem::path& path);

    bool isOpen() const { return static_cast<bool>(file_); }

    /// The content, in the caller's buffer; absent when the file could not be opened or read, or
    /// does not leave room in the buffer.
    std::optional<std::string_view> read(std::span<char> buffer) const;

    /// The same without the blanks and line ends around it; absent also when nothing is left.
    std::optional<std::string_view> readText(std::span<char> buffer) const;

  private:
    FileDescriptor file_;
};

}  // namespace vantor

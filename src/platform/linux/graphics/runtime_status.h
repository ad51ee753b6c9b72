#pragma once

#include <filesystem>
#include <string_view>
#include <utility>

#include "platform/file_descriptor.h"

namespace vantor {

/// Whether a power/runtime_status text lets the device's other files be read: it is active, or
/// its power is not managed ("unsupported"). "suspending", "resuming" and "error" do not. Pure.
bool saysAwake(std::string_view runtimeStatus);

/// The power state of one device: what has to be asked before anything else of it is touched, for
/// nearly every other question wakes a sleeping device. Asking this does not: the kernel answers
/// from its own books. One thread at a time.
class RuntimeStatus {
  public:
    /// Nothing is opened before the first question.
    explicit RuntimeStatus(const std::filesystem::path& device)
        : path_(device / "power/runtime_status") {}

    /// Asked anew each time. A kernel that has no such file puts no device to sleep; one whose file
    /// cannot be read is left alone.
    bool isAwake();

  private:
    std::filesystem::path path_;
    FileDescriptor file_;
};

}  // namespace vantor

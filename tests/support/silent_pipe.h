#pragma once

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "platform/file_descriptor.h"

namespace vantor {

/// A named pipe in the place of a file, with a writer that never writes: a non-blocking reader gets
/// EAGAIN, any other waits for ever.
class SilentPipe {
  public:
    explicit SilentPipe(const std::filesystem::path& path) {
        std::filesystem::remove_all(path);
        if (::mkfifo(path.c_str(), 0600) != 0) {
            throw std::system_error(errno, std::generic_category(), path.string());
        }
        // Reading and writing, for a mere writer would wait for the first reader.
        writer_ = FileDescriptor{::open(path.c_str(), O_RDWR | O_CLOEXEC)};
        if (!writer_) throw std::system_error(errno, std::generic_category(), path.string());
    }

  private:
    FileDescriptor writer_;
};

}  // namespace vantor

#include "platform/linux/files/kernel_list_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace vantor {

namespace {

constexpr std::size_t kernelListFileFirstBufferSize = std::size_t{4} * 1024;

}  // namespace

std::optional<std::string_view> KernelListFile::read() {
    if (!file_) {
        file_ = FileDescriptor{::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
        if (!file_) return std::nullopt;
    }
    if (buffer_.empty()) buffer_.resize(std::min(kernelListFileFirstBufferSize, limit_));
    std::size_t size = 0;
    while (size < limit_) {
        if (size == buffer_.size()) buffer_.resize(std::min(2 * size, limit_));
        const ssize_t count = ::pread(file_.get(), buffer_.data() + size, buffer_.size() - size,
                                      static_cast<off_t>(size));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) {
            file_.reset();  // the next read tries a fresh descriptor
            return std::nullopt;
        }
        if (count == 0) break;
        size += static_cast<std::size_t>(count);
    }
    return std::string_view(buffer_.data(), size);
}

}  // namespace vantor

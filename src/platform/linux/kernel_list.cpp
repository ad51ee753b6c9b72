#include "platform/linux/kernel_list.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace vantor {

namespace {

constexpr std::size_t firstBufferSize = std::size_t{16} * 1024;

}  // namespace

std::optional<std::string_view> KernelList::read() {
    if (!file_) {
        file_ = FileDescriptor{::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
        if (!file_) return std::nullopt;
    }
    if (buffer_.empty()) buffer_.resize(firstBufferSize);
    std::size_t length = 0;
    while (length < limit) {
        if (length == buffer_.size()) buffer_.resize(std::min(2 * length, limit));
        const ssize_t count = ::pread(file_.get(), buffer_.data() + length, buffer_.size() - length,
                                      static_cast<off_t>(length));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) {
            file_.reset();  // the next read tries a fresh descriptor
            return std::nullopt;
        }
        if (count == 0) break;
        length += static_cast<std::size_t>(count);
    }
    return std::string_view(buffer_.data(), length);
}

}  // namespace vantor

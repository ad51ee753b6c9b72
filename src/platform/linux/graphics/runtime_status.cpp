#include "platform/linux/graphics/runtime_status.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace vantor {

bool saysAwake(std::string_view runtimeStatus) {
    if (!runtimeStatus.ends_with('\n')) return false;  // cut
    runtimeStatus.remove_suffix(1);
    return runtimeStatus == "active" || runtimeStatus == "unsupported";
}

bool RuntimeStatus::isAwake() {
    if (!file_) {
        file_ = FileDescriptor{::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
        if (!file_) return errno == ENOENT;
    }
    std::array<char, 32> buffer{};
    ssize_t count = 0;
    do {
        count = ::pread(file_.get(), buffer.data(), buffer.size(), 0);
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
        file_.reset();  // the device has gone; one that came back has another file
        return false;
    }
    return saysAwake({buffer.data(), static_cast<std::size_t>(count)});
}

}  // namespace vantor

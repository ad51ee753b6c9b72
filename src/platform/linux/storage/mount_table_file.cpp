#include "platform/linux/storage/mount_table_file.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <poll.h>
#include <sys/vfs.h>
#include <unistd.h>

#include "platform/linux/files/kernel_file.h"

namespace vantor {

namespace {

constexpr std::chrono::minutes longestUnread{1};

bool isOfTheKernel(int file) {
    struct statfs answer = {};
    return ::fstatfs(file, &answer) == 0 && answer.f_type == PROC_SUPER_MAGIC;
}

}  // namespace

bool MountTableFile::mayHaveChanged() {
    if (!file_ || now_() - readAt_ >= longestUnread) return true;
    pollfd table{file_.get(), POLLPRI, 0};
    // It can be read at any time, which is not asked for; a change is an urgent error.
    return ::poll(&table, 1, 0) != 0;
}

std::optional<std::string> MountTableFile::read() {
    const bool isOpen = static_cast<bool>(file_);
    if (!isOpen) file_ = FileDescriptor{::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    if (!file_) return std::nullopt;
    if (isOpen) ::lseek(file_.get(), 0, SEEK_SET);
    auto text = readOpenKernelFile(file_.get());
    readAt_ = now_();
    // What cannot tell of changes may be another file the next time.
    if (!text || !isOfTheKernel(file_.get())) file_.reset();
    return text;
}

}  // namespace vantor

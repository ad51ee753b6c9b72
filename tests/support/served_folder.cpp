#include "support/served_folder.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace vantor {

ServedFolder::ServedFolder(std::string folder, const std::string& type)
    : folder_(std::move(folder)), wakeUp_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    device_ = FileDescriptor{::open("/dev/fuse", O_RDWR | O_CLOEXEC | O_NONBLOCK)};
    if (!device_) return;
    const std::string options = "fd=" + std::to_string(device_.get()) +
                                ",rootmode=40000,user_id=" + std::to_string(::getuid()) +
                                ",group_id=" + std::to_string(::getgid());
    isMounted_ = ::mount("served", folder_.c_str(), type.c_str(), 0, options.c_str()) == 0;
    if (isMounted_) server_ = std::thread([this] { serve(); });
}

void ServedFolder::setManner(Manner manner) {
    const std::lock_guard lock(mutex_);
    manner_ = manner;
    if (manner == Manner::answers) {
        for (const fuse_in_header& question : std::exchange(kept_, {}))
            answer(question);
    }
    wake();
}

void ServedFolder::shutDown() {
    if (!server_.joinable()) return;
    {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
        wake();
    }
    ::umount2(folder_.c_str(), MNT_FORCE);
    ::umount2(folder_.c_str(), MNT_DETACH);
    server_.join();
    device_.reset();
}

void ServedFolder::wake() const {
    const std::uint64_t one = 1;
    if (::write(wakeUp_.get(), &one, sizeof one) < 0) return;  // it is awake
}

void ServedFolder::serve() {
    while (true) {
        std::array<pollfd, 2> ends{{{wakeUp_.get(), POLLIN, 0}, {device_.get(), POLLIN, 0}}};
        {
            const std::lock_guard lock(mutex_);
            if (manner_ == Manner::readsNothing) ends[1].fd = -1;
            if (isOver_) return;
        }
        ::poll(ends.data(), ends.size(), -1);
        const std::lock_guard lock(mutex_);
        std::uint64_t count = 0;
        if (::read(wakeUp_.get(), &count, sizeof count) < 0 && errno != EAGAIN) return;
        if (manner_ != Manner::readsNothing && !readOne()) return;
    }
}

/// False when the kernel has closed the other end.
bool ServedFolder::readOne() {
    std::array<char, FUSE_MIN_READ_BUFFER + 65536> request{};
    const ssize_t count = ::read(device_.get(), request.data(), request.size());
    if (count < 0) return errno == EAGAIN || errno == EINTR || errno == ENOENT;
    fuse_in_header question{};
    if (count < static_cast<ssize_t>(sizeof question)) return false;
    std::memcpy(&question, request.data(), sizeof question);
    handle(question);
    return true;
}

void ServedFolder::handle(const fuse_in_header& question) {
    if (question.opcode == FUSE_INIT) {
        fuse_init_out greeting{};
        greeting.major = FUSE_KERNEL_VERSION;
        greeting.minor = FUSE_KERNEL_MINOR_VERSION;
        greeting.max_write = 4096;
        hasGreeted_ = say(question.unique, greeting);
        return;
    }
    const auto wantsNoAnswer = {FUSE_FORGET, FUSE_BATCH_FORGET, FUSE_INTERRUPT};
    for (const auto each : wantsNoAnswer) {
        if (question.opcode == each) return;
    }
    ++questions_;
    if (manner_ == Manner::answers) return answer(question);
    kept_.push_back(question);
}

void ServedFolder::answer(const fuse_in_header& question) {
    if (question.opcode == FUSE_STATFS) {
        fuse_statfs_out figures{};
        figures.st.bsize = 4096;
        figures.st.frsize = 4096;
        figures.st.blocks = 1000;
        figures.st.bfree = available_;
        figures.st.bavail = available_;
        figures.st.namelen = 255;
        say(question.unique, figures);
    } else if (question.opcode == FUSE_GETATTR) {
        fuse_attr_out folder{};
        folder.attr.ino = FUSE_ROOT_ID;
        folder.attr.mode = S_IFDIR | 0755;
        folder.attr.nlink = 2;
        say(question.unique, folder);
    } else {
        sayError(question.unique, ENOSYS);
    }
}

template <class Body>
bool ServedFolder::say(std::uint64_t unique, const Body& body) {
    std::array<char, sizeof(fuse_out_header) + sizeof(Body)> text{};
    fuse_out_header header{};
    header.len = text.size();
    header.unique = unique;
    std::memcpy(text.data(), &header, sizeof header);
    std::memcpy(text.data() + sizeof header, &body, sizeof body);
    return ::write(device_.get(), text.data(), text.size()) > 0;
}

void ServedFolder::sayError(std::uint64_t unique, int error) {
    fuse_out_header header{};
    header.len = sizeof header;
    header.error = -error;
    header.unique = unique;
    if (::write(device_.get(), &header, sizeof header) < 0) return;  // nobody waits any more
}

}  // namespace vantor

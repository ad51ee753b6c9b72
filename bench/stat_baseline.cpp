#include "stat_baseline.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace vantor::bench {

namespace {

constexpr std::size_t bufferSize = 1024 * 1024;  // more than any machine's /proc/stat

int openStat() {
    const int fd = ::open("/proc/stat", O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        std::perror("/proc/stat");
        std::exit(2);
    }
    return fd;
}

}  // namespace

StatBaseline::StatBaseline() : fd_(openStat()), buffer_(bufferSize) {}

StatBaseline::~StatBaseline() {
    ::close(fd_);
}

std::size_t StatBaseline::keepOpen() {
    return countLines(fd_);
}

std::size_t StatBaseline::openReadClose() {
    const int fd = openStat();
    const std::size_t lines = countLines(fd);
    ::close(fd);
    return lines;
}

std::size_t StatBaseline::countLines(int fd) {
    const ssize_t count = ::pread(fd, buffer_.data(), buffer_.size(), 0);
    if (count <= 0) return 0;
    std::string_view text(buffer_.data(), static_cast<std::size_t>(count));
    std::size_t lines = 0;
    for (auto end = text.find('\n'); end != text.npos; end = text.find('\n')) {
        ++lines;
        text.remove_prefix(end + 1);
    }
    return lines;
}

}  // namespace vantor::bench

#include "platform/linux/files/kernel_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace vantor {

namespace {

// A page: most such files are far smaller, and every kept file has its buffer.
constexpr std::size_t kernelFileFirstBufferSize = std::size_t{4} * 1024;
// An attribute is a page at most, and no kernel's page is larger.
constexpr std::size_t largestAttribute = std::size_t{64} * 1024;

ssize_t readFromStart(int fd, std::vector<char>& buffer) {
    ssize_t count = 0;
    do {
        count = ::pread(fd, buffer.data(), buffer.size(), 0);
    } while (count < 0 && errno == EINTR);
    return count;
}

}  // namespace

bool KernelFile::open() {
    file_ = FileDescriptor{::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    return static_cast<bool>(file_);
}

std::optional<std::string_view> KernelFile::read() {
    if (!file_ && !open()) return std::nullopt;
    if (buffer_.empty()) buffer_.resize(kernelFileFirstBufferSize);
    ssize_t count = readFromStart(file_.get(), buffer_);
    // A full buffer may hide more. The kernel makes the text anew for each read from the start, so
    // reading on would join the end of one moment to the start of another: read it all again.
    while (count >= 0 && static_cast<std::size_t>(count) == buffer_.size() &&
           buffer_.size() < kernelFileLargestSize) {
        buffer_.resize(buffer_.size() * 2);
        count = readFromStart(file_.get(), buffer_);
    }
    if (count < 0) {
        file_.reset();  // the next read tries a fresh descriptor
        return std::nullopt;
    }
    return std::string_view(buffer_.data(), static_cast<std::size_t>(count));
}

std::optional<std::string> readKernelFile(const std::filesystem::path& path, std::size_t most) {
    const FileDescriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    return file ? readOpenKernelFile(file.get(), most) : std::nullopt;
}

std::optional<std::string> readOpenKernelFile(int file, std::size_t most) {
    std::string content;
    std::size_t size = 0;
    while (size < most) {
        if (size == content.size())
            content.resize(std::min(std::max(2 * size, kernelFileFirstBufferSize), most));
        const ssize_t count = ::read(file, content.data() + size, content.size() - size);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        size += static_cast<std::size_t>(count);
    }
    content.resize(size);
    return content;
}

std::optional<std::string_view> trimmedText(std::string_view content) {
    constexpr std::string_view blanks(" \t\r\n\0", 5);
    const auto first = content.find_first_not_of(blanks);
    if (first == std::string_view::npos) return std::nullopt;
    return content.substr(first, content.find_last_not_of(blanks) - first + 1);
}

std::optional<std::string> readKernelText(const std::filesystem::path& path) {
    const auto content = readKernelFile(path, largestAttribute);
    const auto text = content ? trimmedText(*content) : std::nullopt;
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

}  // namespace vantor

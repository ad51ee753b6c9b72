#include "platform/linux/files/small_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "platform/linux/files/kernel_file.h"

namespace vantor {

SmallFile::SmallFile(const std::filesystem::path& path)
    : file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}

std::optional<std::string_view> SmallFile::read(std::span<char> buffer) const {
    if (!file_) return std::nullopt;
    ssize_t count = 0;
    do {
        count = ::pread(file_.get(), buffer.data(), buffer.size(), 0);
    } while (count < 0 && errno == EINTR);
    // A full buffer may hold only the front.
    if (count < 0 || static_cast<std::size_t>(count) >= buffer.size()) return std::nullopt;
    return std::string_view(buffer.data(), static_cast<std::size_t>(count));
}

std::optional<std::string_view> SmallFile::readText(std::span<char> buffer) const {
    const auto content = read(buffer);
    return content ? trimmedText(*content) : std::nullopt;
}

}  // namespace vantor

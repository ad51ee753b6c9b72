#include "platform/linux/files/attribute_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

#include "platform/file_descriptor.h"

namespace vantor {

bool AttributeText::isGone() const {
    return error == ENOENT || error == ENODEV || error == ENXIO;
}

AttributeText readAttribute(int folder, const char* name) {
    const FileDescriptor file{::openat(folder, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    if (!file) return {{}, errno};
    char buffer[4096];
    ssize_t count = 0;
    do {
        count = ::read(file.get(), buffer, sizeof buffer);
    } while (count < 0 && errno == EINTR);
    if (count < 0) return {{}, errno};
    std::string_view text(buffer, static_cast<std::size_t>(count));
    while (!text.empty() && (text.back() == '\n' || text.back() == '\0'))
        text.remove_suffix(1);
    return {std::string(text), 0};
}

}  // namespace vantor

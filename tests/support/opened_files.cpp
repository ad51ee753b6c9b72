#include "support/opened_files.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace vantor {

OpenedFiles::OpenedFiles(const std::filesystem::path& folder)
    : queue_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    watch(folder, "");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_symlink() || !entry.is_directory()) continue;
        watch(entry.path(), entry.path().lexically_relative(folder).native() + "/");
    }
    take();  // of this listing
}

std::set<std::string> OpenedFiles::take() {
    std::set<std::string> names;
    alignas(inotify_event) std::array<char, 16384> buffer{};
    for (;;) {
        const ssize_t count = ::read(queue_.get(), buffer.data(), buffer.size());
        if (count <= 0) return names;
        for (std::size_t at = 0; at < static_cast<std::size_t>(count);) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            const char* const name = event.len > 0 ? buffer.data() + at + sizeof event : ".";
            names.insert(folders_[event.wd] + name);
            at += sizeof event + event.len;
        }
    }
}

void OpenedFiles::watch(const std::filesystem::path& folder, const std::string& name) {
    const int watch =
        ::inotify_add_watch(queue_.get(), folder.c_str(), IN_OPEN | IN_ACCESS | IN_MODIFY);
    if (watch < 0) throw std::runtime_error(std::strerror(errno));
    folders_[watch] = name;
}

}  // namespace vantor

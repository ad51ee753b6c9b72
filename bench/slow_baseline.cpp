#include "slow_baseline.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>

namespace vantor::bench {

namespace {

[[noreturn]] void giveUp(const char* what) {
    std::perror(what);
    std::exit(2);
}

/// Gives how many bytes it had; none where there is no such file.
std::size_t readFile(int folder, const char* name, std::span<char> buffer) {
    const int file = ::openat(folder, name, O_RDONLY | O_CLOEXEC);
    if (file < 0) return 0;
    std::size_t length = 0;
    const ssize_t count = ::read(file, buffer.data(), buffer.size());
    if (count > 0) length = static_cast<std::size_t>(count);
    ::close(file);
    return length;
}

}  // namespace

StorageBaseline::StorageBaseline(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        struct stat place = {};
        if (::stat(path.c_str(), &place) != 0) giveUp(path.c_str());
        const std::string number =
            std::to_string(major(place.st_dev)) + ":" + std::to_string(minor(place.st_dev));
        const std::string device = "/sys/dev/block/" + number;
        // A partition's disk says it.
        const bool isWhole = ::access((device + "/removable").c_str(), R_OK) == 0;
        volumes_.push_back({path, device, device + (isWhole ? "/removable" : "/../removable"),
                            "/run/udev/data/b" + number});
    }
}

std::size_t StorageBaseline::askSpace() {
    std::size_t sum = 0;
    const int table = ::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC);
    if (table < 0) giveUp("mountinfo");
    ssize_t count = 0;
    while ((count = ::read(table, buffer_.data(), buffer_.size())) > 0)
        sum += static_cast<std::size_t>(count);
    ::close(table);
    for (const Volume& volume : volumes_) {
        struct statfs answer = {};
        if (::statfs(volume.path.c_str(), &answer) != 0) giveUp(volume.path.c_str());
        sum += answer.f_blocks;
    }
    return sum;
}

std::size_t StorageBaseline::askSpaceAndDevices() {
    std::size_t sum = askSpace();
    for (const Volume& volume : volumes_) {
        const ssize_t length = ::readlink(volume.device.c_str(), buffer_.data(), buffer_.size());
        if (length > 0) sum += static_cast<std::size_t>(length);
        sum += readFile(AT_FDCWD, volume.removable.c_str(), buffer_);
        sum += readFile(AT_FDCWD, volume.label.c_str(), buffer_);
    }
    return sum;
}

std::size_t PowerBaseline::pass() {
    DIR* const listing = ::opendir(folder_.c_str());
    if (!listing) giveUp(folder_.c_str());
    std::size_t length = 0;
    while (const dirent* const entry = ::readdir(listing)) {
        if (entry->d_name[0] == '.') continue;
        const int supply = ::openat(::dirfd(listing), entry->d_name, O_PATH | O_CLOEXEC);
        if (supply < 0) giveUp(entry->d_name);
        length += readFile(supply, "type", buffer_);
        const bool isBattery = std::strncmp(buffer_.data(), "Battery", 7) == 0;
        length += readFile(supply, "scope", buffer_);
        if (isBattery) {
            for (const char* name :
                 {"present", "status", "energy_now", "energy_full", "power_now", "time_to_full_now",
                  "time_to_empty_now", "cycle_count", "model_name"}) {
                length += readFile(supply, name, buffer_);
            }
        } else {
            length += readFile(supply, "online", buffer_);
        }
        ::close(supply);
    }
    ::closedir(listing);
    return length;
}

}  // namespace vantor::bench

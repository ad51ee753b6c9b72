#include "kept_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/linux/files/kernel_file.h"

namespace vantor::bench {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> entriesOf(const char* folder, std::string_view prefix) {
    std::vector<std::string> paths;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        if (at->path().filename().native().starts_with(prefix)) paths.push_back(at->path());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

/// A zone without such a point says nothing of how hot is too hot.
bool hasTripPoint(const std::string& zone) {
    for (int i = 0;; ++i) {
        const auto type = readKernelText(zone + "/trip_point_" + std::to_string(i) + "_type");
        if (!type) return false;
        if (*type == "passive" || *type == "hot" || *type == "critical") return true;
    }
}

}  // namespace

KeptFiles::KeptFiles(const std::vector<std::string>& paths, std::size_t room) : buffer_(room) {
    for (const std::string& path : paths) {
        FileDescriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
        if (file) files_.push_back(std::move(file));
    }
}

std::size_t KeptFiles::read() {
    std::size_t length = 0;
    for (const FileDescriptor& file : files_) {
        const ssize_t count = ::pread(file.get(), buffer_.data(), buffer_.size(), 0);
        if (count > 0) length += static_cast<std::size_t>(count);
    }
    return length;
}

std::vector<std::string> memoryFiles() {
    std::vector<std::string> paths{"/proc/meminfo", "/proc/spl/kstat/zfs/arcstats"};
    for (const std::string& device : entriesOf("/sys/block", "zram"))
        paths.push_back(device + "/mm_stat");
    return paths;
}

std::vector<std::string> systemFiles() {
    std::vector<std::string> paths{"/proc/sys/kernel/hostname", "/proc/uptime",
                                   "/sys/firmware/acpi/platform_profile"};
    for (const std::string& zone : entriesOf("/sys/class/thermal", "thermal_zone")) {
        if (hasTripPoint(zone)) paths.push_back(zone + "/temp");
    }
    const auto policies = entriesOf("/sys/devices/system/cpu/cpufreq", "policy");
    if (!policies.empty()) paths.push_back(policies.front() + "/energy_performance_preference");
    return paths;
}

}  // namespace vantor::bench

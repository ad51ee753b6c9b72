#include "platform/linux/graphics/drm_sweep.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace vantor {

std::string_view graphicsNode(std::string_view link) {
    constexpr std::string_view folder = "/dri/";
    const auto slash = link.rfind('/');
    if (slash == std::string_view::npos) return {};
    if (!link.substr(0, slash + 1).ends_with(folder)) return {};
    const std::string_view node = link.substr(slash + 1);
    return node.starts_with("card") || node.starts_with("renderD") ? node : std::string_view{};
}

DRMSweep::DRMSweep(const std::filesystem::path& proc)
    : proc_(::open(proc.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

void DRMSweep::begin(double now) {
    processes_.read(proc_);
    next_ = 0;
    startedAt_ = now;
}

std::span<const DRMDescriptor> DRMSweep::step(double now) {
    found_.clear();
    double share = 1;
    if (!startedAt_ || now < *startedAt_) {
        begin(now);
    } else {
        const double interval = now - steppedAt_;
        if (now - *startedAt_ >= period) begin(now);
        share = std::min(1.0, (now - *startedAt_ + interval) / period);
    }
    steppedAt_ = now;
    const auto pids = processes_.pids();
    const auto end = std::min(
        pids.size(), static_cast<std::size_t>(std::ceil(share * static_cast<double>(pids.size()))));
    for (; next_ < end; ++next_)
        lookInto(pids[next_]);
    return found_;
}

void DRMSweep::lookInto(std::int32_t pid) {
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "%d/fd", pid);
    const FileDescriptor folder{
        ::openat(proc_.get(), name.data(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (!folder || !files_.read(folder)) return;
    // Far more than the name of a graphics device; a longer one that is cut is none.
    std::array<char, 256> target{};
    const auto files = files_.pids();
    for (const std::int32_t fd : files.first(std::min(files.size(), maxFiles))) {
        std::snprintf(name.data(), name.size(), "%d", fd);
        const ssize_t length =
            ::readlinkat(folder.get(), name.data(), target.data(), target.size());
        if (length <= 0 || static_cast<std::size_t>(length) >= target.size()) continue;
        const std::string_view node =
            graphicsNode({target.data(), static_cast<std::size_t>(length)});
        if (!node.empty()) found_.push_back({pid, fd, std::string(node)});
    }
}

}  // namespace vantor

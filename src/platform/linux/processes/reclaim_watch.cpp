#include "platform/linux/processes/reclaim_watch.h"

#include <charconv>

namespace vantor {

namespace {

constexpr double lookPeriod = 1.0;
constexpr double calmAfter = 30.0;
constexpr std::string_view takenBack = "pgsteal";

bool isCounted(std::string_view name) {
    return name.starts_with(takenBack) || name == "pswpout" || name == "thp_collapse_alloc" ||
           name == "thp_underused_split_page";
}

}  // namespace

std::optional<std::uint64_t> parseReclaimCount(std::string_view vmstat) {
    std::uint64_t sum = 0;
    bool hasTakenBack = false;
    while (!vmstat.empty()) {
        const auto lineEnd = vmstat.find('\n');
        if (lineEnd == std::string_view::npos) return std::nullopt;
        const std::string_view line = vmstat.substr(0, lineEnd);
        vmstat.remove_prefix(lineEnd + 1);
        // Nearly all lines are others.
        if (!line.starts_with('p') && !line.starts_with('t')) continue;
        const auto blank = line.find(' ');
        if (blank == std::string_view::npos || !isCounted(line.substr(0, blank))) continue;
        std::uint64_t count = 0;
        const char* const lineStop = line.data() + line.size();
        const auto [end, error] = std::from_chars(line.data() + blank + 1, lineStop, count);
        if (error != std::errc{} || end != lineStop) return std::nullopt;
        sum += count;
        hasTakenBack = hasTakenBack || line.starts_with(takenBack);
    }
    return hasTakenBack ? std::optional(sum) : std::nullopt;
}

bool ReclaimWatch::isCalm(double now) {
    if (!nextLook_ || now >= *nextLook_) {
        const auto text = file_.read();
        const auto count = text ? parseReclaimCount(*text) : std::nullopt;
        if (nextLook_ && count != count_) movedUptime_ = now;
        count_ = count;
        nextLook_ = now + lookPeriod;
    }
    return count_ && !(movedUptime_ && now - *movedUptime_ <= calmAfter);
}

}  // namespace vantor

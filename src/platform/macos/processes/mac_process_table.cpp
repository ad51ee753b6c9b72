#include "platform/macos/processes/mac_process_table.h"

#include <libproc.h>
#include <mach/mach_time.h>
#include <sys/proc_info.h>

#include <algorithm>
#include <limits>

namespace vantor {

int MacProcessTable::listAllPIDs(std::span<std::int32_t> buffer) {
    if (buffer.empty()) return ::proc_listallpids(nullptr, 0);
    // The room is given in bytes, with 31 bits; the answer is a number of processes.
    constexpr auto maxBytes = static_cast<std::size_t>(std::numeric_limits<int>::max());
    const auto bytes = static_cast<int>(std::min(buffer.size_bytes(), maxBytes));
    return ::proc_listallpids(buffer.data(), bytes);
}

int MacProcessTable::taskAllInfo(std::int32_t pid, TaskAllInfo& info) {
    proc_taskallinfo all{};
    const int size = ::proc_pidinfo(pid, PROC_PIDTASKALLINFO, 0, &all, int{sizeof all});
    if (size != taskAllInfoSize) return size;
    info.startSeconds = all.pbsd.pbi_start_tvsec;
    info.startMicroseconds = all.pbsd.pbi_start_tvusec;
    info.residentSize = all.ptinfo.pti_resident_size;
    info.totalUser = all.ptinfo.pti_total_user;
    info.totalSystem = all.ptinfo.pti_total_system;
    return size;
}

int MacProcessTable::path(std::int32_t pid, std::span<char> buffer) {
    // More room than the longest path is refused.
    const auto room = std::min<std::size_t>(buffer.size(), PROC_PIDPATHINFO_MAXSIZE);
    return ::proc_pidpath(pid, buffer.data(), static_cast<std::uint32_t>(room));
}

bool MacProcessTable::mayHaveNewPath(std::int32_t) {
    return true;
}

int MacProcessTable::name(std::int32_t pid, std::span<char> buffer) {
    constexpr std::size_t maxSize = std::numeric_limits<std::int32_t>::max();
    const auto room = std::min(buffer.size(), maxSize);
    return ::proc_name(pid, buffer.data(), static_cast<std::uint32_t>(room));
}

std::optional<ProcessTable::Timebase> MacProcessTable::timebase() {
    mach_timebase_info_data_t info{};
    if (::mach_timebase_info(&info) != KERN_SUCCESS) return std::nullopt;
    return Timebase{info.numer, info.denom};
}

}  // namespace vantor

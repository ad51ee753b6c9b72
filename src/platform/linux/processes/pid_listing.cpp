#include "platform/linux/processes/pid_listing.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string_view>

namespace vantor {

namespace {

constexpr std::size_t pidListingBufferSize = std::size_t{32} * 1024;

// struct linux_dirent64: inode, offset (8 bytes each), length of the entry (2), type (1), name.
constexpr std::size_t lengthOffset = 16;
constexpr std::size_t nameOffset = 19;

}  // namespace

void appendPIDs(std::span<const std::byte> entries, std::vector<std::int32_t>& pids) {
    while (entries.size() > nameOffset) {
        std::uint16_t length = 0;
        std::memcpy(&length, entries.data() + lengthOffset, sizeof length);
        if (length <= nameOffset || length > entries.size()) return;
        const std::string_view padded(reinterpret_cast<const char*>(entries.data()) + nameOffset,
                                      length - nameOffset);
        const std::string_view name = padded.substr(0, padded.find('\0'));
        const char* const end = name.data() + name.size();
        std::int32_t pid = 0;
        const auto [rest, error] = std::from_chars(name.data(), end, pid);
        if (error == std::errc{} && rest == end && pid > 0) pids.push_back(pid);
        entries = entries.subspan(length);
    }
}

bool PIDListing::read(const FileDescriptor& proc) {
    pids_.clear();
    if (!proc || ::lseek(proc.get(), 0, SEEK_SET) != 0) return false;
    if (!buffer_) buffer_ = std::make_unique_for_overwrite<std::byte[]>(pidListingBufferSize);
    for (;;) {
        const long count =
            ::syscall(SYS_getdents64, proc.get(), buffer_.get(), pidListingBufferSize);
        if (count < 0) pids_.clear();
        if (count < 0) return false;
        if (count == 0) break;
        appendPIDs({buffer_.get(), static_cast<std::size_t>(count)}, pids_);
    }
    // A recorded machine's folder is in whatever order its file system keeps.
    if (!std::is_sorted(pids_.begin(), pids_.end())) std::sort(pids_.begin(), pids_.end());
    return true;
}

}  // namespace vantor

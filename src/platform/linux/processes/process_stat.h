#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantor {

/// What a monitor needs of /proc/PID/stat and /proc/PID/statm
/// (https://docs.kernel.org/filesystems/proc.html, tables 1-3 and 1-4). Pure: no file is touched.
struct ProcessStat {
    std::string_view name;          ///< without its parentheses; lies in the parsed text
    std::uint64_t userTicks = 0;    ///< USER_HZ, of all threads
    std::uint64_t systemTicks = 0;  ///< USER_HZ
    std::uint64_t startTicks = 0;   ///< USER_HZ after the machine's start
    std::uint64_t residentPages = 0;
    bool isKernelThread = false;  ///< never has memory of its own

    /// Absent when a field is missing or no number. The name may hold blanks, parentheses and line
    /// ends: it ends at the last closing parenthesis.
    static std::optional<ProcessStat> parse(std::string_view text);
};

/// The resident pages of a statm text; absent when it is malformed.
std::optional<std::uint64_t> parseResidentPages(std::string_view statm);

}  // namespace vantor

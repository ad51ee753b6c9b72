#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/linux_roots.h"
#include "platform/process_info.h"

/// What the kernel is and what it has been given, from the files that say so. Each is absent when
/// its file is missing or malformed.
namespace vantor {

/// Bytes of memory: MemTotal of /proc/meminfo.
std::optional<std::uint64_t> readInstalledMemory(const LinuxRoots& roots);

/// The kernel's release, as `uname -r` has it: /proc/sys/kernel/osrelease.
std::optional<std::string> readKernelRelease(const LinuxRoots& roots);

/// The highest process number plus one: /proc/sys/kernel/pid_max.
std::optional<std::int32_t> readProcessLimit(const LinuxRoots& roots);

/// The three numbers at the front of a release such as "6.1.0-28-amd64"; those that are not there
/// are zero. Absent when it does not begin with a number. Pure.
std::optional<ProcessInfo::Version> parseKernelRelease(std::string_view release);

}  // namespace vantor

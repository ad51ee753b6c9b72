#include "platform/linux/system/linux_process_info.h"

#include <sys/utsname.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

#include "platform/linux/files/kernel_file.h"
#include "platform/linux/processor/cpu_identity.h"
#include "platform/linux/system/kernel_facts.h"
#include "platform/linux/system/os_release.h"

namespace vantor {

namespace {

constexpr int unknownThermalState = -1;

/// "(none)" is what the kernel calls itself before it is given a name.
bool isName(std::string_view text) {
    return !text.empty() && text != "(none)";
}

}  // namespace

LinuxProcessInfo::LinuxProcessInfo(const LinuxRoots& roots)
    : roots_(roots),
      uptime_(roots.proc / "uptime"),
      hostName_(roots.proc / "sys/kernel/hostname"),
      thermalZones_(roots),
      lowPowerMode_(roots) {}

double LinuxProcessInfo::systemUptime() const {
    // The standard library's steady clock is CLOCK_MONOTONIC here.
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

std::optional<double> parseUptime(std::string_view text) {
    double seconds = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, seconds, std::chars_format::fixed);
    // Only the blank behind it tells that the number was not cut.
    if (error != std::errc{} || rest == end || *rest != ' ') return std::nullopt;
    if (!std::isfinite(seconds) || seconds < 0) return std::nullopt;
    return seconds;
}

double LinuxProcessInfo::secondsSinceBoot() const {
    std::array<char, 64> buffer{};
    const auto text = uptime_.read(buffer);
    if (const auto seconds = text ? parseUptime(*text) : std::nullopt) return *seconds;
    timespec now{};
    if (::clock_gettime(CLOCK_BOOTTIME, &now) != 0) return systemUptime();
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

std::int64_t LinuxProcessInfo::processorCount() const {
    if (const auto count = countPresentProcessors(roots_)) return *count;
    return std::max(1L, ::sysconf(_SC_NPROCESSORS_CONF));
}

std::int64_t LinuxProcessInfo::activeProcessorCount() const {
    if (const auto count = countOnlineProcessors(roots_)) return *count;
    return std::max(1L, ::sysconf(_SC_NPROCESSORS_ONLN));
}

std::uint64_t LinuxProcessInfo::physicalMemory() const {
    if (const auto bytes = readInstalledMemory(roots_)) return *bytes;
    const auto pages = static_cast<std::uint64_t>(std::max(0L, ::sysconf(_SC_PHYS_PAGES)));
    return pages * static_cast<std::uint64_t>(std::max(0L, ::sysconf(_SC_PAGE_SIZE)));
}

void LinuxProcessInfo::hostName(std::string& name) const {
    std::array<char, 256> buffer{};
    if (const auto text = hostName_.readText(buffer); text && isName(*text)) {
        name = *text;
        return;
    }
    const bool answers = ::gethostname(buffer.data(), buffer.size() - 1) == 0;
    const std::string_view text(answers ? buffer.data() : "");
    name = isName(text) ? text : "localhost";
}

ProcessInfo::Version LinuxProcessInfo::operatingSystemVersion() const {
    if (const auto release = readKernelRelease(roots_)) {
        if (const auto version = parseKernelRelease(*release)) return *version;
    }
    utsname name{};
    if (::uname(&name) != 0) return {};
    return parseKernelRelease(name.release).value_or(Version{});
}

std::optional<std::string> LinuxProcessInfo::operatingSystemName() const {
    return operatingSystemNameIn(readKernelFile(roots_.etc / "os-release").value_or(""));
}

int LinuxProcessInfo::thermalState() {
    return thermalZones_.state(systemUptime()).value_or(unknownThermalState);
}

bool LinuxProcessInfo::isLowPowerModeEnabled() {
    return lowPowerMode_.isEnabled(systemUptime());
}

}  // namespace vantor

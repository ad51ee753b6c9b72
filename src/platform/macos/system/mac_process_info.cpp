#include "platform/macos/system/mac_process_info.h"

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "platform/macos/system/mac_kernel_values.h"
#include "platform/macos/system/product_version.h"
#include "platform/time_units.h"

namespace vantor {

namespace {

constexpr int unknownThermalState = -1;

template <class T>
std::optional<T> kernelValue(const char* name) {
    T value{};
    std::size_t size = 0;
    const auto bytes = std::as_writable_bytes(std::span(&value, 1));
    if (MacKernelValues().sysctlbyname(name, bytes, size) != 0 || size != sizeof value) {
        return std::nullopt;
    }
    return value;
}

std::optional<ProcessInfo::Version> kernelVersion() {
    std::array<char, 64> text{};
    std::size_t size = 0;
    const auto bytes = std::as_writable_bytes(std::span(text).first(text.size() - 1));
    if (MacKernelValues().sysctlbyname("kern.osproductversion", bytes, size) != 0) {
        return std::nullopt;
    }
    return parseProductVersion(text.data());
}

}  // namespace

MacProcessInfo::MacProcessInfo(std::shared_ptr<const Frameworks> frameworks)
    : foundation_(std::move(frameworks)) {
    auto version = foundation_.operatingSystemVersion();
    if (!version) version = kernelVersion();
    version_ = version.value_or(Version{});
}

double MacProcessInfo::systemUptime() const {
    return static_cast<double>(::clock_gettime_nsec_np(CLOCK_UPTIME_RAW)) /
           static_cast<double>(nanosecondsPerSecond);
}

double MacProcessInfo::secondsSinceBoot() const {
    return systemUptime();
}

std::int64_t MacProcessInfo::processorCount() const {
    if (const auto count = kernelValue<std::int32_t>("hw.ncpu"); count && *count > 0) return *count;
    return std::max(1L, ::sysconf(_SC_NPROCESSORS_CONF));
}

std::int64_t MacProcessInfo::activeProcessorCount() const {
    const auto count = kernelValue<std::int32_t>("hw.activecpu");
    if (count && *count > 0) return *count;
    return std::max(1L, ::sysconf(_SC_NPROCESSORS_ONLN));
}

std::uint64_t MacProcessInfo::physicalMemory() const {
    if (const auto bytes = kernelValue<std::uint64_t>("hw.memsize")) return *bytes;
    const auto pages = static_cast<std::uint64_t>(std::max(0L, ::sysconf(_SC_PHYS_PAGES)));
    return pages * static_cast<std::uint64_t>(std::max(0L, ::sysconf(_SC_PAGESIZE)));
}

void MacProcessInfo::hostName(std::string& name) const {
    // The same name as Foundation's, which may wait for a name server, again and again.
    std::array<char, 256> buffer{};
    if (::gethostname(buffer.data(), buffer.size() - 1) == 0 && buffer[0] != '\0') {
        name = buffer.data();
    } else if (!foundation_.hostName(name)) {
        name = "localhost";
    }
}

ProcessInfo::Version MacProcessInfo::operatingSystemVersion() const {
    return version_;
}

std::optional<std::string> MacProcessInfo::operatingSystemName() const {
    return std::nullopt;
}

bool MacProcessInfo::isOperatingSystemAtLeast(int major, int minor, int patch) const {
    return isAtLeast(version_, {major, minor, patch});
}

int MacProcessInfo::thermalState() {
    return foundation_.thermalState().value_or(unknownThermalState);
}

bool MacProcessInfo::isLowPowerModeEnabled() {
    return foundation_.isLowPowerModeEnabled().value_or(false);
}

}  // namespace vantor

#include "platform/linux/system/linux_kernel_values.h"

#include <sys/utsname.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/linux/processor/cpu_identity.h"
#include "platform/linux/system/kernel_facts.h"
#include "platform/time_units.h"

namespace vantor {

namespace {

using KernelBytes = std::optional<std::vector<std::byte>>;

template <class T>
KernelBytes toBytes(const std::optional<T>& value) {
    if (!value) return std::nullopt;
    std::vector<std::byte> bytes(sizeof(T));
    std::memcpy(bytes.data(), &*value, sizeof(T));
    return bytes;
}

KernelBytes toBytes(const std::optional<std::string>& text) {
    if (!text) return std::nullopt;
    const auto letters = std::as_bytes(std::span(*text));
    std::vector<std::byte> bytes(letters.begin(), letters.end());
    bytes.push_back(std::byte{0});
    return bytes;
}

/// The file may be out of bounds for a program that is confined; the call is not.
std::optional<std::string> nameRunningKernel(const LinuxRoots& roots) {
    if (auto release = readKernelRelease(roots)) return release;
    utsname name{};
    if (::uname(&name) != 0 || name.release[0] == '\0') return std::nullopt;
    return std::string(name.release);
}

struct KernelValueEntry {
    std::string_view name;
    KernelBytes (*read)(const LinuxRoots&);
};

constexpr std::array entries{
    KernelValueEntry{"machdep.cpu.brand_string",
                     [](const LinuxRoots& roots) { return toBytes(readProcessorName(roots)); }},
    KernelValueEntry{"hw.model",
                     [](const LinuxRoots& roots) { return toBytes(readHardwareModel(roots)); }},
    KernelValueEntry{"hw.logicalcpu",
                     [](const LinuxRoots& roots) { return toBytes(countOnlineProcessors(roots)); }},
    KernelValueEntry{"hw.physicalcpu",
                     [](const LinuxRoots& roots) { return toBytes(countPhysicalCores(roots)); }},
    KernelValueEntry{
        "hw.cpufrequency",
        [](const LinuxRoots& roots) { return toBytes(readNominalFrequencyHz(roots)); }},
    KernelValueEntry{"hw.memsize",
                     [](const LinuxRoots& roots) { return toBytes(readInstalledMemory(roots)); }},
    KernelValueEntry{
        "hw.tbfrequency",
        [](const LinuxRoots&) { return toBytes(std::optional(nanosecondsPerSecond)); }},
    KernelValueEntry{"kern.maxproc",
                     [](const LinuxRoots& roots) { return toBytes(readProcessLimit(roots)); }},
    KernelValueEntry{"kern.osversion",
                     [](const LinuxRoots& roots) { return toBytes(nameRunningKernel(roots)); }},
};

}  // namespace

int LinuxKernelValues::sysctlbyname(const std::string& name, std::span<std::byte> buffer,
                                    std::size_t& size) {
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [&](const KernelValueEntry& e) { return e.name == name; });
    const KernelBytes value = entry == entries.end() ? std::nullopt : entry->read(roots_);
    if (!value) return ENOENT;
    size = value->size();
    if (buffer.empty()) return 0;
    if (buffer.size() < value->size()) return ENOMEM;
    std::copy(value->begin(), value->end(), buffer.begin());
    return 0;
}

}  // namespace vantor

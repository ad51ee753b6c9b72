#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/linux_roots.h"

/// Who the processor is, from the files that say so. Each is absent when no file does.
namespace vantor {

/// The first "model name" of /proc/cpuinfo; where there is none (ARM), the device tree's model.
std::optional<std::string> readProcessorName(const LinuxRoots& roots);

/// The DMI product name; where there is none, the device tree's model.
std::optional<std::string> readHardwareModel(const LinuxRoots& roots);

/// Processors online, from /sys/devices/system/cpu/online.
std::optional<std::int32_t> countOnlineProcessors(const LinuxRoots& roots);

/// Processors present, from /sys/devices/system/cpu/present.
std::optional<std::int32_t> countPresentProcessors(const LinuxRoots& roots);

/// Distinct cores among the processors online, from their topology folders.
std::optional<std::int32_t> countPhysicalCores(const LinuxRoots& roots);

/// base_frequency of the first processor online (the intel_pstate driver has one), else the
/// "@ n GHz" of the processor's name, else what the firmware tells the system
/// (acpi_cppc/nominal_freq).
std::optional<std::uint64_t> readNominalFrequencyHz(const LinuxRoots& roots);

/// The value of the first "key : value" line of a cpuinfo text with that key. Pure.
std::optional<std::string> findInCPUInfo(std::string_view text, std::string_view key);

/// The hertz of "… @ 2.60GHz"; absent without such an end. Pure.
std::optional<std::uint64_t> frequencyInName(std::string_view name);

}  // namespace vantor

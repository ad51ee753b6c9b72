#pragma once

#include <span>
#include <string_view>

#include "platform/kernel_values.h"

namespace vantor {

enum class ChipFamily { unknown, m1, m2, m3, m4, m5, a18 };

/// What kind of processor a machine has, as far as its temperature sensors care.
struct ChipPlatform {
    bool isAppleSilicon = false;
    ChipFamily family = ChipFamily::unknown;

    bool operator==(const ChipPlatform&) const = default;
};

/// Asks the kernel for the processor's brand and architecture.
ChipPlatform detectPlatform(KernelValues& values);

/// The family in a brand text such as "Apple M2 Pro". Pure.
ChipFamily chipFamilyOf(std::string_view brand);

/// The controller's keys for the sensors of that family, in the order to be read; empty for those
/// whose keys are unknown.
std::span<const std::string_view> cpuTemperatureKeys(ChipFamily family);
std::span<const std::string_view> gpuTemperatureKeys(ChipFamily family);

}  // namespace vantor

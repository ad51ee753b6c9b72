#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "probes/gpu_records.h"

namespace vantor {

/// By normalized name in code-point order; equal names by identifier, those without one last.
/// Stable.
void sortRegistryStats(std::vector<RegistryStats>& stats);

/// The place in `in` of the entry that belongs to the device, which is at `fallbackIndex` of
/// `metalDevices`. Entries at the places of `excluding` belong to other devices.
///
/// By identifier, else by a name that leaves no doubt, else because there is one device and one
/// entry and nothing contradicts it. Rather none than a wrong one.
std::optional<std::size_t> matchingRegistryStatsIndex(
    const MetalDeviceMetadata& device, std::size_t fallbackIndex, std::span<const RegistryStats> in,
    std::span<const MetalDeviceMetadata> metalDevices, std::span<const std::size_t> excluding);

}  // namespace vantor

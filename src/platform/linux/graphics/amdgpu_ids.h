#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantor {

/// The name that an amdgpu.ids text (libdrm's list, "73BF, C0, AMD Radeon RX 6900 XT" a line) has
/// for a device of that revision. Without a revision, the name that all of the device's have in
/// common; absent when there is none. Pure.
std::optional<std::string> findAMDGPUName(std::string_view text, std::uint16_t device,
                                          std::optional<std::uint8_t> revision);

}  // namespace vantor

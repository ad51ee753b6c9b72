#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "platform/linux/graphics/pci_address.h"

namespace vantor {

/// What one class of a device's engines has done for a client.
struct DRMEngine {
    std::string_view name;  ///< "render", "rcs"
    std::optional<std::uint64_t> busyNanoseconds;
    std::optional<std::uint64_t> cycles;       ///< busy ones
    std::optional<std::uint64_t> totalCycles;  ///< that have gone by
    std::uint64_t capacity = 1;                ///< how many engines of the class there are
};

/// A /proc/PID/fdinfo/FD text of an open graphics device, in the drivers' common format
/// (https://docs.kernel.org/gpu/drm-usage-stats.html). Valid as long as the text.
struct DRMFdInfo {
    static constexpr std::size_t maxEngines = 16;

    std::string_view driver;
    std::optional<PCIAddress> device;
    std::uint64_t clientID = 0;

    std::span<const DRMEngine> engines() const { return {engines_.data(), engineCount_}; }

    /// Absent when the text is of another kind of file, or has no engine. Values that are
    /// malformed, cut or of another unit are left out. Pure.
    static std::optional<DRMFdInfo> parse(std::string_view text);

  private:
    void take(std::string_view key, std::string_view value);
    DRMEngine* engine(std::string_view name);

    std::array<DRMEngine, maxEngines> engines_{};
    std::size_t engineCount_ = 0;
    bool hasClientID_ = false;
};

}  // namespace vantor

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/linux/files/small_file.h"
#include "platform/linux/graphics/graphics_figures.h"

namespace vantor {

/// The amdgpu driver's figures of a card in its folder of /sys: gpu_busy_percent, mem_info_vram_*
/// and mem_info_gtt_* (https://docs.kernel.org/gpu/amdgpu/driver-misc.html). Kept open.
class AMDGPUFiles {
  public:
    /// `sharesMemory`: the card's memory is the system's, of which the part that firmware has set
    /// aside ("vram") is filled first and the rest ("gtt") next.
    AMDGPUFiles(const std::filesystem::path& device, bool sharesMemory);

    /// Fills in utilisation and memory. False when something that there is a file for could not be
    /// read this time: the card may be resetting, or have gone to sleep.
    bool read(GraphicsFigures& figures) const;

    /// The driver does not tell how busy the card is (it does from Linux 4.19 on).
    bool isBusynessUnknown() const { return !busy_.isOpen(); }

  private:
    struct Memory {
        SmallFile used;
        SmallFile total;
    };

    bool readMemory(GraphicsFigures& figures) const;

    SmallFile busy_;
    Memory vram_;
    std::optional<Memory> gtt_;
};

/// A whole number of a short kernel text, without anything else but a line end; absent when
/// malformed. Pure.
std::optional<std::uint64_t> parseCount(std::string_view text);

}  // namespace vantor

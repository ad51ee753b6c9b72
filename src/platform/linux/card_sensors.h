#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "platform/linux/small_file.h"

namespace vantor {

/// One temperature of a graphics card's hwmon folder.
struct CardSensorLabel {
    unsigned number = 0;  ///< 1 for temp1_input
    std::string label;    ///< of temp1_label; empty when there is none
};

/// Which of them is the card's: "edge" (the chip's own), else "junction" (its hottest spot), else
/// "pkg", else the first that is not the memory's; absent when there is none. Pure.
std::optional<unsigned> chooseCardSensor(std::span<const CardSensorLabel> sensors);

/// What the hwmon folder of a card that is awake has.
struct CardSensors {
    std::optional<SmallFile> temperature;  ///< thousandths of a degree Celsius
    /// There is a voltage "vddnb", that of a north bridge. amdgpu shows it for chips that share
    /// package and memory with a processor, and only for those; the amounts of memory do not tell,
    /// for the part that firmware sets aside may be as large as a small card's.
    bool isBesideProcessor = false;

    static CardSensors find(const std::filesystem::path& device);
};

}  // namespace vantor

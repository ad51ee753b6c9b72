#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "platform/linux/files/small_file.h"

namespace vantor {

/// One temperature of a graphics card's hwmon folder.
struct CardSensorLabel {
    unsigned number = 0;  ///< 1 for temp1_input
    std::string label;    ///< of temp1_label; empty when there is none
};

/// Which of them tell how hot the card is, the best one first: "edge" (the chip's own), "junction"
/// (its hottest spot), "pkg", then the others but for those of the memory and the connection. Pure.
std::vector<unsigned> orderCardSensors(std::span<const CardSensorLabel> sensors);

/// What the hwmon folder of a card that is awake has.
struct CardSensors {
    /// Thousandths of a degree Celsius. Each stands in for those before it that do not answer.
    std::vector<SmallFile> temperatures;
    /// There is a voltage "vddnb", that of a north bridge. amdgpu shows it for chips that share
    /// package and memory with a processor, and only for those; the amounts of memory do not tell,
    /// for the part that firmware sets aside may be as large as a small card's.
    bool isBesideProcessor = false;

    static CardSensors find(const std::filesystem::path& device);
};

}  // namespace vantor

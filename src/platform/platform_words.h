#pragma once

#include <string_view>

namespace vantor {

/// What figures stand for whose names come from another system. Empty where they are at home.
struct FigureMeanings {
    std::string_view nominal;
    std::string_view wired;
    std::string_view compressed;
    std::string_view thermalState;
    std::string_view lowPowerMode;
};

/// The texts that name the platform; everything else the program says is the same everywhere.
struct PlatformWords {
    std::string_view systemName;
    std::string_view subtitle;         ///< under the product's name in the header
    std::string_view unknownHardware;  ///< where the machine does not say what it is
    std::string_view noGraphicsTitle;  ///< where there is no graphics device
    std::string_view noGraphicsMessage;
    std::string_view noVolumesMessage;
    /// What sets the load of some devices apart from that of others, and the word in their names
    /// that tells them; empty where all are counted alike.
    std::string_view graphicsLoadNote;
    std::string_view graphicsLoadNoteMark;
    std::string_view processInterface;   ///< where the figures of processes come from
    std::string_view graphicsInterface;  ///< what publishes graphics figures beside the driver
    std::string_view graphicsTelemetry;  ///< what graphics figures are collected from
    std::string_view quitKeys;           ///< what the user presses to quit, as a text spells it
    FigureMeanings meanings{};
};

}  // namespace vantor

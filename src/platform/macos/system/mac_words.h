#pragma once

#include "platform/platform_words.h"

namespace vantor {

/// What a Mac is called; also what the simulated ones are.
inline constexpr PlatformWords macWords{
    .systemName = "macOS",
    .subtitle = "Live macOS performance intelligence",
    .unknownHardware = "Unknown Mac",
    .noGraphicsTitle = "No Metal Device",
    .noGraphicsMessage = "The active graphics driver did not expose a Metal device.",
    .noVolumesMessage = "No browsable mounted volume was returned by macOS.",
    .graphicsLoadNote = "",
    .graphicsLoadNoteMark = "",
    .processInterface = "libproc",
    .graphicsInterface = "Metal",
    .graphicsTelemetry = "Metal + IORegistry",
    .quitKeys = "Command-Q"};

}  // namespace vantor

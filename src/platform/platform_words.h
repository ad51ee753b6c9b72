#pragma once

#include <string_view>

namespace vantor {

/// The texts that name the platform; everything else the program says is the same everywhere.
struct PlatformWords {
    std::string_view subtitle;         ///< under the product's name in the header
    std::string_view unknownHardware;  ///< where the machine does not say what it is
};

}  // namespace vantor

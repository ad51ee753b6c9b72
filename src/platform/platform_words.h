#pragma once

#include <string_view>

namespace vantor {

/// The texts that name the platform; everything else the program says is the same everywhere.
struct PlatformWords {
    std::string_view subtitle;  ///< under the product's name in the header
};

}  // namespace vantor

#pragma once

#include <cstdint>

#include "platform/published.h"

namespace vantor {

/// How the desktop would like programs to look, as its user has set it.
struct DesktopLook {
    enum class Scheme : std::uint8_t {
        unknown,  ///< it has no preference, or cannot be asked
        dark,
        light,
    };

    Scheme scheme = Scheme::unknown;
    bool hasHighContrast = false;

    bool operator==(const DesktopLook&) const = default;
};

/// The desktop's look, published when it changes; the default one until something is known. Main
/// thread.
class DesktopAppearance {
  public:
    virtual ~DesktopAppearance() = default;
    virtual Published<DesktopLook>& look() = 0;
};

}  // namespace vantor

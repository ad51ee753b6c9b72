#pragma once

#include "platform/wall_clock.h"

namespace vantor {

/// The system's own date.
class SystemWallClock : public WallClock {
  public:
    std::chrono::system_clock::time_point now() const override {
        return std::chrono::system_clock::now();
    }
};

}  // namespace vantor

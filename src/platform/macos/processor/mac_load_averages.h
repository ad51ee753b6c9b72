#pragma once

#include "platform/load_averages.h"

namespace vantor {

/// The C library's.
class MacLoadAverages : public LoadAverages {
  public:
    int getloadavg(std::span<double> averages) override;
};

}  // namespace vantor

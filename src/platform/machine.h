#pragma once

#include "platform/host_processors.h"
#include "platform/kernel_values.h"
#include "platform/load_averages.h"
#include "platform/platform_words.h"
#include "platform/process_info.h"
#include "platform/wall_clock.h"

namespace vantor {

/// Everything that the program asks of one machine. Readers keep the machine alive, because a call
/// may still hang in it after everything else is gone.
class Machine {
  public:
    virtual ~Machine() = default;

    virtual HostProcessors& hostProcessors() = 0;
    virtual KernelValues& kernelValues() = 0;
    virtual LoadAverages& loadAverages() = 0;
    virtual ProcessInfo& processInfo() = 0;
    virtual WallClock& wallClock() = 0;
    virtual const PlatformWords& words() const = 0;
};

}  // namespace vantor

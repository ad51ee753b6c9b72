#pragma once

#include "platform/linux/linux_host_processors.h"
#include "platform/linux/linux_kernel_values.h"
#include "platform/linux/linux_load_averages.h"
#include "platform/linux/linux_process_info.h"
#include "platform/linux/linux_roots.h"
#include "platform/machine.h"

namespace vantor {

/// The machine that the program runs on, or one recorded in a folder.
class LinuxMachine : public Machine {
  public:
    explicit LinuxMachine(const LinuxRoots& roots = {})
        : hostProcessors_(roots), kernelValues_(roots), loadAverages_(roots), processInfo_(roots) {}

    HostProcessors& hostProcessors() override { return hostProcessors_; }
    KernelValues& kernelValues() override { return kernelValues_; }
    LoadAverages& loadAverages() override { return loadAverages_; }
    ProcessInfo& processInfo() override { return processInfo_; }
    WallClock& wallClock() override { return wallClock_; }
    const PlatformWords& words() const override { return words_; }

  private:
    class SystemWallClock : public WallClock {
      public:
        std::chrono::system_clock::time_point now() const override {
            return std::chrono::system_clock::now();
        }
    };

    LinuxHostProcessors hostProcessors_;
    LinuxKernelValues kernelValues_;
    LinuxLoadAverages loadAverages_;
    LinuxProcessInfo processInfo_;
    SystemWallClock wallClock_;
    PlatformWords words_{"Live Linux performance intelligence"};
};

}  // namespace vantor

#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace vantor {

/// One argument of a system call, of which the lower half is looked at: the kernel itself looks no
/// further in the calls that are asked about here.
struct ArgumentTest {
    enum class Holds { whenEqual, whenDifferent, withoutTheBit, whenOtherProcess };

    std::uint32_t argument = 0;
    Holds holds = Holds::whenEqual;
    std::uint32_t value = 0;  ///< not looked at for whenOtherProcess
};

/// A system call that is denied: always, or where all of its tests hold.
struct DeniedCall {
    const char* name;
    std::uint32_t number;
    int error;  ///< an errno value for the caller
    std::span<const ArgumentTest> tests{};
};

/// From the first moment on.
std::span<const DeniedCall> callsDeniedEarly();

/// In addition, where the display is on this machine.
std::span<const DeniedCall> callsDeniedWithLocalDisplay();

/// Once the program runs, whatever display it is on. In part the same as those before.
std::span<const DeniedCall> callsDeniedWhenRunning();

/// Then, in addition, once the program listens for later starts of itself.
std::span<const DeniedCall> callsDeniedAfterListening();

}  // namespace vantor

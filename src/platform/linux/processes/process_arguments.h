#pragma once

#include <optional>
#include <string_view>

/// What a process says itself of what it was started as: everybody may read that, while the link to
/// its executable is for its own user. A process may write there whatever it likes, so it is
/// believed no more than to complete the kernel's own name.
namespace vantor {

/// The first of the arguments in the text of /proc/PID/cmdline. Absent where there is none, as with
/// kernel threads, where its end is missing, and where it has control characters. Pure; the result
/// lies within `arguments`.
std::optional<std::string_view> firstArgument(std::string_view arguments);

/// Whether the kernel, which keeps fifteen bytes of a name, may have cut this one. Pure.
bool mayBeCut(std::string_view kernelName);

/// The last component of `argument` where it is what the kernel calls the process: the same, or a
/// longer one if the kernel's may be cut. Pure.
std::optional<std::string_view> wholeName(std::string_view argument, std::string_view kernelName);

}  // namespace vantor

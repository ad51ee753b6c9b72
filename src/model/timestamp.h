#pragma once

#include <chrono>

namespace vantor {

/// Wall-clock instants; everything else in the program measures with the monotonic uptime.
using Timestamp = std::chrono::system_clock::time_point;

}  // namespace vantor

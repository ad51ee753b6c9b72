#pragma once

#include <filesystem>

namespace vantor {

/// Where the kernel's trees are mounted. A recorded machine has its own.
struct LinuxRoots {
    std::filesystem::path proc = "/proc";
    std::filesystem::path sys = "/sys";
};

}  // namespace vantor

#pragma once

#include <filesystem>

namespace vantor {

/// Where the kernel's trees and the system's own files are. A recorded machine has its own.
struct LinuxRoots {
    std::filesystem::path proc = "/proc";
    std::filesystem::path sys = "/sys";
    std::filesystem::path etc = "/etc";
    std::filesystem::path run = "/run";
    std::filesystem::path usr = "/usr";
};

}  // namespace vantor

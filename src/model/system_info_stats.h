#pragma once

#include <string>

namespace vantor {

/// What the machine is, and its slow state.
struct SystemInfoStats {
    std::string hostName;
    std::string hardwareModel;
    std::string operatingSystem;         ///< name and version as shown to people
    std::string kernelVersion;           ///< the kernel's build string; may be empty
    std::string architecture;            ///< the one that the program was built for
    bool isRunningUnderRosetta = false;  ///< translated from another architecture
    double uptimeSeconds = 0;            ///< since boot
    std::string thermalState;            ///< "Nominal", "Fair", "Serious", "Critical" or "Unknown"
    bool lowPowerModeEnabled = false;

    bool operator==(const SystemInfoStats&) const = default;
};

}  // namespace vantor

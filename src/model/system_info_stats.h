#pragma once

#include <string>
#include <tuple>

#include "model/field.h"

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

template <>
inline constexpr auto fieldsOf<SystemInfoStats> =
    std::tuple{Field{"hostName", &SystemInfoStats::hostName},
               Field{"hardwareModel", &SystemInfoStats::hardwareModel},
               Field{"operatingSystem", &SystemInfoStats::operatingSystem},
               Field{"kernelVersion", &SystemInfoStats::kernelVersion},
               Field{"architecture", &SystemInfoStats::architecture},
               Field{"isRunningUnderRosetta", &SystemInfoStats::isRunningUnderRosetta},
               Field{"uptimeSeconds", &SystemInfoStats::uptimeSeconds},
               Field{"thermalState", &SystemInfoStats::thermalState},
               Field{"lowPowerModeEnabled", &SystemInfoStats::lowPowerModeEnabled}};

}  // namespace vantor

#include "probes/system_info_reader.h"

#include <string_view>

#include "platform/program_architecture.h"
#include "platform/sysctl.h"
#include "probes/kernel_text.h"

namespace vantor {

namespace {

std::string_view thermalStateText(int state) {
    switch (state) {
        case 0:
            return "Nominal";
        case 1:
            return "Fair";
        case 2:
            return "Serious";
        case 3:
            return "Critical";
        default:
            return "Unknown";
    }
}

std::string operatingSystem(const ProcessInfo& info) {
    if (auto name = info.operatingSystemName()) {
        makeUTF8(*name);
        return *std::move(name);
    }
    const auto [major, minor, patch] = info.operatingSystemVersion();
    return "macOS " + std::to_string(major) + '.' + std::to_string(minor) + '.' +
           std::to_string(patch);
}

}  // namespace

const SystemInfoStats& SystemInfoReader::read() {
    std::call_once(isIdentified_, [this] { identify(); });
    ProcessInfo& info = machine_->processInfo();
    info.hostName(stats_.hostName);
    makeUTF8(stats_.hostName);
    stats_.uptimeSeconds = info.secondsSinceBoot();
    stats_.thermalState = thermalStateText(info.thermalState());
    stats_.lowPowerModeEnabled =
        info.isOperatingSystemAtLeast(12, 0, 0) && info.isLowPowerModeEnabled();
    return stats_;
}

void SystemInfoReader::identify() {
    const Sysctl sysctl(machine_->kernelValues());
    if (auto model = sysctl.string("hw.model")) {
        stats_.hardwareModel = *std::move(model);
    } else {
        stats_.hardwareModel = machine_->words().unknownHardware;
    }
    stats_.operatingSystem = operatingSystem(machine_->processInfo());
    stats_.kernelVersion = sysctl.string("kern.osversion").value_or(std::string{});
    stats_.architecture = programArchitecture;
    stats_.isRunningUnderRosetta = sysctl.int32("sysctl.proc_translated") == 1;
}

}  // namespace vantor

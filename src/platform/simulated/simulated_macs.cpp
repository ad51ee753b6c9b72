#include "platform/simulated/simulated_macs.h"

#include <string>
#include <utility>
#include <vector>

namespace vantor {

namespace {

constexpr double hottestProcessorKey = 61.5;
constexpr double hottestGraphicsKey = 52.75;

struct Chip {
    const char* brand;
    std::vector<std::string> processorKeys;
    std::vector<std::string> graphicsKeys;
};

Chip chipOf(SimulatedChip chip) {
    switch (chip) {
        case SimulatedChip::m1:
            return {"Apple M1", {"Tp09", "Tp0T", "Tp0b"}, {"Tg05", "Tg0T"}};
        case SimulatedChip::m2:
            return {"Apple M2 Pro", {"Tp1h", "Tp1t", "Tp0j"}, {"Tg0f", "Tg0j"}};
        case SimulatedChip::m3:
            return {"Apple M3 Max", {"Te05", "Tf04", "Tf4E"}, {"Tf14", "Tf2A"}};
        case SimulatedChip::m4:
            return {"Apple M4", {"Te05", "Tp01", "Tp0e"}, {"Tg0G", "Tg0k"}};
        case SimulatedChip::m5:
            return {"Apple M5", {"Tp00", "Tp0C", "Tp0y"}, {"Tg0U", "Tg1g"}};
        case SimulatedChip::a18:
            return {"Apple A18 Pro", {}, {}};
        case SimulatedChip::unknown:
            break;
    }
    return {"Apple M9 Ultra", {}, {}};
}

/// The last of them is the hottest; one is in the other number format.
void addKeys(SimulatedSystemController& controller, const std::vector<std::string>& keys,
             double hottest) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const double celsius = hottest - 1.5 * static_cast<double>(keys.size() - 1 - i);
        if (i == 0) {
            controller.setFixed(keys[i], celsius);
        } else {
            controller.setFloat(keys[i], static_cast<float>(celsius));
        }
    }
}

}  // namespace

std::shared_ptr<SimulatedMachine> makeAppleSiliconMac(SimulatedChip chip,
                                                      std::shared_ptr<FakeClock> clock) {
    auto machine = SimulatedMachine::laptop(std::move(clock));
    const Chip described = chipOf(chip);
    machine->kernelValues().setText("machdep.cpu.brand_string", described.brand);
    machine->kernelValues().setInt32("hw.optional.arm64", 1);
    machine->kernelValues().setInt32("sysctl.proc_translated", 0);
    machine->kernelValues().remove("hw.cpufrequency");
    SimulatedSystemController& controller = machine->systemController();
    controller.isPresent = true;
    controller.setFloat("TB0T", 31.5F);
    addKeys(controller, described.processorKeys, hottestProcessorKey);
    addKeys(controller, described.graphicsKeys, hottestGraphicsKey);
    machine->hidEventSystem().services = {{"PMU tdie1", 55.5},
                                          {"PMU tdie2", 58.25},
                                          {"PMU tdev1", 12'800.0},
                                          {"PMU tcal", 51.85},
                                          {"eACC MTR Temp Sensor0", 47.0},
                                          {"pACC MTR Temp Sensor2", 56.75},
                                          {"PMU TP1s", 54.5},
                                          {"GPU MTR Temp Sensor1", 48.5},
                                          {"PMU2 tdie1", 49.5},
                                          {"gas gauge battery", 30.25},
                                          {"NAND CH0 temp", 34.0}};
    return machine;
}

std::shared_ptr<SimulatedMachine> makeIntelMac(std::shared_ptr<FakeClock> clock) {
    auto machine = SimulatedMachine::desktop(std::move(clock));
    machine->kernelValues().setText("machdep.cpu.brand_string",
                                    "Intel(R) Core(TM) i7-8700B CPU @ 3.20GHz");
    SimulatedSystemController& controller = machine->systemController();
    controller.isPresent = true;
    controller.setFixed("TC0D", 67);
    controller.setFixed("TC0C", 61);
    controller.setFixed("TC1C", 64.5);
    controller.setFixed("TC2C", 63);
    controller.setFixed("TC3C", 62.25);
    controller.setFixed("TC0P", 52);
    machine->hidEventSystem().hasLibrary = false;
    return machine;
}

}  // namespace vantor

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "support/recorded_machine.h"

/// What the calls tell of the graphics cards of recorded machines.
namespace vantor::recorded_graphics_test {
namespace {

/// A line for each card, in the order of the calls, with a star before the default one: its number
/// where it has an address, name, kind and size of memory, and its figures.
std::vector<std::string> cardsOf(Machine& machine) {
    std::vector<std::string> lines;
    std::vector<GraphicsDevices::Device> devices;
    machine.graphicsDevices().copyAllDevices(devices);
    const auto chosen = machine.graphicsDevices().systemDefaultDevice();
    auto& accelerators = machine.accelerators();
    const auto iterator = accelerators.matchingServices();
    for (const auto& device : devices) {
        const auto service = iterator ? accelerators.iteratorNext(*iterator) : 0;
        std::ostringstream line;
        line.precision(15);
        const bool hasAddress = device.registryID >> 63 == 0;
        line << (device.registryID == chosen ? "*" : " ");
        if (hasAddress) line << "0x" << std::hex << device.registryID << std::dec << ' ';
        line << device.name << (device.hasUnifiedMemory ? ", unified" : "") << ", "
             << device.recommendedMaxWorkingSetSize << ':';
        EXPECT_EQ(accelerators.registryEntryID(service), device.registryID);
        const auto* const said = accelerators.property(service, "PerformanceStatistics");
        if (said) {
            for (const auto& [key, value] : *said->dictionary())
                line << ' ' << key << '=' << std::round(value.number().value_or(-1) * 100) / 100;
        }
        lines.push_back(line.str());
    }
    EXPECT_EQ(iterator ? accelerators.iteratorNext(*iterator) : 0, 0U);
    return lines;
}

struct Row {
    const char* machine;
    std::vector<std::string> cards;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.machine; }
};

class RecordedGraphics : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Of, RecordedGraphics,
    testing::Values(
        Row{"arm-board",
            {"*brcm,2711-v3d, unified, 0: Device Utilization %=12",
             " brcm,bcm2711-vc5, unified, 0:"}},
        Row{"container", {}},
        Row{"desktop-disks-vpn",
            {"*0x300 AMD Radeon RX 6800 XT, 17163091968: Device Utilization %=63"
             " Temperature(C)=52 VRAM Used=2147483648 VRAM Total=17163091968"}},
        Row{"hybrid-laptop",
            {" 0x300 AMD Radeon RX 6800S, 8589934592: Device Utilization %=87"
             " Temperature(C)=61 VRAM Used=2147483648 VRAM Total=8589934592",
             "*0x700 AMD Radeon 680M, unified, 8573157376: Device Utilization %=14"
             " Temperature(C)=57 VRAM Used=446693376 VRAM Total=8573157376"}},
        Row{"ipv6-only-host",
            {" 0x10 Intel 0x9a49, unified, 0:",
             "*0x300 Intel 0x56a0, 0: Device Utilization %=25 Temperature(C)=44"}},
        Row{"laptop-two-batteries",
            {"*0x10 Intel UHD Graphics 620, unified, 0: Device Utilization %=35"}},
        Row{"old-kernel", {}},
        Row{"server-128",
            {"*0x400 ASPEED Graphics Family, 0:",
             " 0xc100 AMD Instinct MI210, 68702699520: Device Utilization %=100"
             " Temperature(C)=31 VRAM Used=64000000000 VRAM Total=68702699520",
             " 0xc400 AMD Instinct MI210, 68702699520: Device Utilization %=7"
             " Temperature(C)=32 VRAM Used=1000000 VRAM Total=68702699520"}},
        Row{"ultrabook-after-sleep",
            {" 0x100 NVIDIA GeForce RTX 3050 Mobile, 0:",
             "*0x10 Intel Iris Xe Graphics, unified, 0: Device Utilization %=4"}},
        Row{"vm-no-sensors", {"*0x10 Red Hat Virtio 1.0 GPU, 0:"}},
        Row{"zfs-machine",
            {"*0x500 AMD Radeon Vega Series / Radeon Vega Mobile Series, unified, 18253611008:"
             " Device Utilization %=3 Temperature(C)=39 VRAM Used=741728512"
             " VRAM Total=18253611008"}}),
    [](const auto& row) {
        std::string name = row.param.machine;
        std::replace(name.begin(), name.end(), '-', '_');
        return name;
    });

TEST(RecordedGraphicsThatSleep, AreNamedAndHaveNoFiguresUntilTheyWake) {
    RecordedMachine machine("hybrid-laptop");
    const auto asleep = cardsOf(machine);
    machine.wind(1);
    EXPECT_EQ(cardsOf(machine), asleep);
    EXPECT_EQ(asleep.at(0), " 0x300 AMD Radeon RX 6650 XT / 6700S / 6800S, 0:");
    machine.advance(1);
    EXPECT_THAT(cardsOf(machine).at(0), testing::HasSubstr("RX 6800S, 8589934592: Device"));
}

TEST_P(RecordedGraphics, AreTold) {
    RecordedMachine machine(GetParam().machine);
    cardsOf(machine);
    machine.advance(1);
    EXPECT_EQ(cardsOf(machine), GetParam().cards);
}

}  // namespace
}  // namespace vantor::recorded_graphics_test

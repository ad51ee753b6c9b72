#include "platform/simulated/simulated_machine.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "platform/simulated/simulated_graphics.h"

namespace vantor {

namespace {

constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;

}  // namespace

int SimulatedLoadAverages::getloadavg(std::span<double> averages) {
    if (answer < 1) return answer;
    const std::size_t count = std::min(values.size(), averages.size());
    std::copy_n(values.begin(), count, averages.begin());
    return answer;
}

bool SimulatedProcessInfo::isOperatingSystemAtLeast(int major, int minor, int patch) const {
    return version >= std::array{major, minor, patch};
}

std::chrono::system_clock::time_point SimulatedWallClock::now() const {
    using namespace std::chrono;
    constexpr auto start = sys_days{year{2026} / 2 / 3} + hours{9} + minutes{5} + seconds{7};
    return start + duration_cast<system_clock::duration>(clock_->now());
}

namespace {

using Family = InterfaceCalls::Family;

void setPrimaryInterface(SimulatedDynamicStore& store, const std::string& name) {
    store.values.insert_or_assign(
        "State:/Network/Global/IPv4",
        PropertyValue(PropertyDictionary{{"PrimaryInterface", PropertyValue(name)}}));
}

/// A wireless interface that carries the default route, and a private network over it.
void addLaptopNetwork(SimulatedMachine& machine) {
    auto& list = machine.interfaceCalls().interfaces;
    SimulatedInterfaceCalls::Interface loopback;
    loopback.name = "lo0";
    loopback.flags |= InterfaceCalls::loopback;
    loopback.addresses = {{Family::ipv4, "127.0.0.1"}};
    SimulatedInterfaceCalls::Interface wireless;
    wireless.name = "en0";
    wireless.index = 4;
    wireless.received = 3'000'000'000;
    wireless.sent = 400'000'000;
    wireless.addresses = {{Family::ipv6, "fe80::1c2b:3a4d:5e6f:7081%en0"},
                          {Family::ipv4, "192.168.1.23"},
                          {Family::ipv6, "2001:db8:1::23"}};
    SimulatedInterfaceCalls::Interface tunnel;
    tunnel.name = "utun4";
    tunnel.index = 11;
    tunnel.flags |= InterfaceCalls::pointToPoint;
    tunnel.received = 20'000'000;
    tunnel.sent = 5'000'000;
    tunnel.addresses = {{Family::ipv4, "10.8.0.2"}};
    list = {std::move(loopback), std::move(wireless), std::move(tunnel)};
    setPrimaryInterface(machine.dynamicStore(), "en0");
}

/// Two wired interfaces and the many that virtual machines and containers bring along.
void addDesktopNetwork(SimulatedMachine& machine) {
    auto& list = machine.interfaceCalls().interfaces;
    list.clear();
    constexpr int count = 24;
    for (int i = 0; i < count; ++i) {
        auto& wired = machine.interfaceCalls().named((i < 2 ? "en" : "bridge") +
                                                     std::to_string(i < 2 ? i : 98 + i));
        wired.received = 1'000'000'000ULL * static_cast<unsigned>(i + 1);
        wired.sent = 50'000'000ULL * static_cast<unsigned>(i + 1);
        wired.addresses = {{Family::ipv4, "192.168." + std::to_string(i) + ".10"},
                           {Family::ipv6, "fd00:" + std::to_string(i) + "::10"}};
    }
    setPrimaryInterface(machine.dynamicStore(), "en1");
}

void furnishLaptopStorageAndPower(SimulatedMachine& machine) {
    machine.mountedVolumes().add("/", "Macintosh HD", 494'384'795'648);
    machine.powerSources().addBattery(80, 200);
}

void furnishDesktopStorage(SimulatedMachine& machine) {
    machine.powerSources().sources.clear();
    SimulatedMountedVolumes& volumes = machine.mountedVolumes();
    volumes.volumes.clear();
    volumes.add("/", "Macintosh HD", 994'662'584'320);
    for (int i = 1; i <= 12; ++i) {
        const std::string name = "Archive " + std::to_string(i);
        auto& volume = volumes.add("/Volumes/" + name, name, i * std::int64_t{500'000'000'000});
        volume.details.isInternal = i <= 4;
    }
    auto& stick = volumes.add("/Volumes/STICK", "STICK", 32'000'000'000);
    stick.details.isInternal = false;
    stick.details.isRemovable = true;
    auto& disc = volumes.add("/Volumes/Installer", "Installer", 650'000'000);
    disc.details.isInternal = false;
    disc.details.isReadOnly = true;
    volumes.add("/Volumes/team", "team").classification.isLocal = false;
}

}  // namespace

SimulatedMachine::SimulatedMachine(std::shared_ptr<FakeClock> clock)
    : clock_(std::move(clock)), processInfo_(clock_), wallClock_(clock_) {}

std::shared_ptr<SimulatedMachine> SimulatedMachine::laptop(std::shared_ptr<FakeClock> clock) {
    auto machine = std::make_shared<SimulatedMachine>(std::move(clock));
    machine->hostProcessors_.processors.resize(4);
    for (auto& processor : machine->hostProcessors_.processors) {
        processor = {1000, 500, 8000, 100};
    }
    machine->hostProcessors_.total = {4000, 2000, 32000, 400};
    machine->kernelValues_.setText("machdep.cpu.brand_string", "Simulated Processor M1");
    machine->kernelValues_.setText("hw.model", "SimBook1,1");
    machine->kernelValues_.setInt32("hw.logicalcpu", 4);
    machine->kernelValues_.setInt32("hw.physicalcpu", 2);
    machine->kernelValues_.setUInt64("hw.cpufrequency", 2'400'000'000);
    machine->kernelValues_.setUInt64("hw.memsize", gibibyte * 16);
    machine->kernelValues_.setText("kern.osversion", "23A344");
    SimulatedHostMemory& memory = machine->hostMemory_;
    memory.active = memory.pagesOf(gibibyte * 4);
    memory.wired = memory.pagesOf(gibibyte * 2);
    memory.compressor = memory.pagesOf(gibibyte * 1);
    memory.inactive = memory.pagesOf(gibibyte * 3);
    memory.purgeable = memory.pagesOf(gibibyte / 4);
    machine->processInfo_.version = {14, 2, 1};
    machine->processInfo_.host = "simbook.local";
    addLaptopNetwork(*machine);
    furnishLaptopStorageAndPower(*machine);
    addLaptopGraphics(*machine);
    return machine;
}

std::shared_ptr<SimulatedMachine> SimulatedMachine::desktop(std::shared_ptr<FakeClock> clock) {
    auto machine = laptop(std::move(clock));
    addDesktopNetwork(*machine);
    furnishDesktopStorage(*machine);
    addDesktopGraphics(*machine);
    return machine;
}

std::shared_ptr<SimulatedMachine> SimulatedMachine::broken(std::shared_ptr<FakeClock> clock) {
    auto machine = std::make_shared<SimulatedMachine>(std::move(clock));
    machine->hostProcessors_.totalFails = true;
    machine->hostProcessors_.processorsFail = true;
    machine->hostMemory_.statisticsFail = true;
    machine->hostMemory_.pageSizeFails = true;
    machine->loadAverages_.answer = -1;
    machine->processInfo_.thermal = -1;
    machine->interfaceCalls_.addressListFails = true;
    machine->mountedVolumes_.enumerationFails = true;
    machine->powerSources_.infoFails = true;
    machine->accelerators_.lookupFails = true;
    return machine;
}

}  // namespace vantor

#include "platform/simulated/simulated_machine.h"

#include <algorithm>

namespace vantor {

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

SimulatedMachine::SimulatedMachine(std::shared_ptr<WoundClock> clock)
    : clock_(std::move(clock)), processInfo_(clock_), wallClock_(clock_) {}

std::shared_ptr<SimulatedMachine> SimulatedMachine::laptop(std::shared_ptr<WoundClock> clock) {
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
    return machine;
}

std::shared_ptr<SimulatedMachine> SimulatedMachine::broken(std::shared_ptr<WoundClock> clock) {
    auto machine = std::make_shared<SimulatedMachine>(std::move(clock));
    machine->hostProcessors_.totalFails = true;
    machine->hostProcessors_.processorsFail = true;
    machine->loadAverages_.answer = -1;
    return machine;
}

}  // namespace vantor

#include "sequences/process_sequence.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

namespace vantor {

namespace {

constexpr std::uint64_t microsecondsPerSecond = 1'000'000;

/// Some births differ in their microseconds only, some in both.
std::uint64_t birthOf(const SimulatedProcessTable::Process& process) {
    return process.info.startSeconds * microsecondsPerSecond + process.info.startMicroseconds;
}

}  // namespace

long double ProcessSequence::chooseTimebase(Chance& chance, SimulatedMachine& machine) {
    switch (chance.below(4)) {
        case 0:
            machine.kernelValues().setUInt64("hw.tbfrequency", 24'000'000);
            return 24'000'000;
        case 1:
            machine.processTable().nativeTimebase = {125, 3};
            return 24'000'000;
        case 2:
            machine.processTable().nativeTimebase.reset();
            return 1e9L;
        default:
            return 1e9L;
    }
}

/// Some machines list fewer than there are.
std::size_t ProcessSequence::chooseMaximum(Chance& chance, SimulatedMachine& machine) {
    if (!chance.oneIn(8)) return std::numeric_limits<std::size_t>::max();
    const auto maximum = static_cast<std::int32_t>(1 + chance.below(20));
    machine.kernelValues().setInt32("kern.maxproc", maximum);
    return static_cast<std::size_t>(maximum);
}

ProcessSequence::ProcessSequence(std::uint64_t seed) : chance_(seed) {
    machine_->clock()->setNow(std::chrono::seconds{1000});
    highestPID_ = chance_.oneIn(2) ? 60 : 100'000;
    population_ = 1 + chance_.below(30);
    // A life in a crowd takes as long as a hundred others, so it is rare.
    if (chance_.oneIn(200)) population_ = 2500;
    if (population_ > 100) highestPID_ = 6000;
    while (table_.processes.size() < population_)
        bear();
    table_.onList = [this] { listMore(); };
}

std::int32_t ProcessSequence::freePID() {
    for (;;) {
        const auto pid =
            static_cast<std::int32_t>(1 + chance_.below(static_cast<std::uint64_t>(highestPID_)));
        if (!table_.find(pid)) return pid;
    }
}

void ProcessSequence::bear() {
    births_ += chance_.oneIn(2) ? 1 : microsecondsPerSecond;
    Process& process =
        table_.add(freePID(), "/bin/born-" + std::to_string(births_), chance_.below(40) * 4096);
    process.info.startSeconds = births_ / microsecondsPerSecond;
    process.info.startMicroseconds = births_ % microsecondsPerSecond;
    process.info.totalUser = chance_.ofAnySize(50);
    process.info.totalSystem = chance_.ofAnySize(50);
    process.mayHaveNewPath = !chance_.oneIn(4);
}

void ProcessSequence::comeAndGo() {
    auto& processes = table_.processes;
    for (std::uint64_t deaths = chance_.below(1 + processes.size() / 6 + 1); deaths > 0; --deaths) {
        if (processes.empty()) break;
        const std::size_t place = chance_.placeIn(processes);
        const std::int32_t pid = processes[place].pid;
        if (chance_.oneIn(2)) {
            processes.erase(processes.begin() + static_cast<std::ptrdiff_t>(place));
        } else {  // another one has its identifier by the next reading
            processes.erase(processes.begin() + static_cast<std::ptrdiff_t>(place));
            bear();
            processes.back().pid = pid;
        }
    }
    while (processes.size() < population_)
        bear();
    if (chance_.oneIn(60)) population_ = population_ > 100 ? 3 : 1 + chance_.below(30);
    if (population_ < 100 && chance_.oneIn(5)) {
        std::swap(processes[chance_.placeIn(processes)], processes[chance_.placeIn(processes)]);
    }
}

void ProcessSequence::work() {
    constexpr std::uint64_t largest = ~std::uint64_t{0};
    for (Process& process : table_.processes) {
        process.isReadable = !chance_.oneIn(30);
        if (chance_.oneIn(3)) continue;
        process.info.totalUser += chance_.ofAnySize(36);
        process.info.totalSystem += chance_.ofAnySize(30);
        if (chance_.oneIn(50)) process.info.totalUser = chance_.ofAnySize(40);  // starts again
        if (chance_.oneIn(200)) process.info.totalUser = largest - chance_.below(3);
        process.info.residentSize = chance_.oneIn(9) ? chance_.any() : chance_.below(40) * 4096;
        if (process.mayHaveNewPath && chance_.oneIn(40)) process.path += "-again";
    }
}

void ProcessSequence::passTime() {
    using std::chrono::nanoseconds;
    switch (chance_.below(30)) {
        case 0:
            return;  // asked twice in a moment
        case 1:
            machine_->clock()->wind(-nanoseconds(chance_.below(20'000'000'000)));
            return;
        case 2:
            machine_->clock()->wind(nanoseconds(chance_.ofAnySize(50)));
            return;
        default:
            machine_->clock()->wind(nanoseconds(1 + chance_.below(3'000'000'000)));
    }
}

/// Whether anything can be listed this time.
bool ProcessSequence::failAtTimes() {
    table_.claimedCount.reset();
    table_.claimedListed.reset();
    table_.infoSize = ProcessTable::taskAllInfoSize;
    if (chance_.oneIn(50)) table_.claimedCount = 0;
    if (chance_.oneIn(50)) table_.claimedListed = static_cast<int>(chance_.below(2)) - 1;
    if (chance_.oneIn(50)) table_.infoSize = 136;
    return !table_.claimedCount && !table_.claimedListed &&
           table_.infoSize == ProcessTable::taskAllInfoSize;
}

/// Some are born while the list is made: they are in it, as there is room to spare.
void ProcessSequence::listMore() {
    if (!chance_.oneIn(10) || highestPID_ < 1000) return;
    for (std::uint64_t more = chance_.below(5); more > 0; --more)
        bear();
}

ProcessOracle::Reading ProcessSequence::truth(bool isListed) const {
    ProcessOracle::Reading reading;
    reading.uptime = machine_->clock()->seconds();
    if (!isListed) return reading;
    for (const Process& process : table_.processes) {
        if (&process - table_.processes.data() >=
            static_cast<std::ptrdiff_t>(std::min(maximum_, table_.processes.size()))) {
            break;
        }
        const auto& info = process.info;
        const bool overflows = info.totalUser > ~std::uint64_t{0} - info.totalSystem;
        if (!process.isReadable || overflows) continue;
        reading.processes.push_back({process.pid, birthOf(process),
                                     info.totalUser + info.totalSystem, info.residentSize,
                                     process.path});
    }
    return reading;
}

std::optional<std::string> ProcessSequence::step() {
    comeAndGo();
    work();
    passTime();
    const bool isListed = failAtTimes();
    if (chance_.oneIn(60)) {
        reader_.resetDeltas();
        oracle_.forget();
    }
    const ProcessSample actual = reader_.read();
    table_.bufferSizes.clear();
    oracle_.hear(truth(isListed));
    return oracle_.judge(actual);
}

}  // namespace vantor

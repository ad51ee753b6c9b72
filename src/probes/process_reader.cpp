#include "probes/process_reader.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "model/checked.h"
#include "platform/sysctl.h"
#include "platform/time_units.h"
#include "probes/top_n.h"

namespace vantor {

namespace {

constexpr std::int64_t defaultMaximumPIDCapacity = 131072;
constexpr std::size_t spareListEntries = 64;
// The call counts the buffer's bytes with 31 bits.
constexpr std::size_t maxListEntries =
    static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()) / sizeof(std::int32_t);
constexpr int listAttempts = 3;
constexpr double refreshPeriod = 10.0;
// Questions are put every ten seconds or a little later: the next one is still within the minute.
constexpr double certainRefreshPeriod = 50.0;

std::int64_t findMaximumPIDCapacity(Machine& machine) {
    const auto maximum = Sysctl(machine.kernelValues()).int32("kern.maxproc");
    return maximum && *maximum > 0 ? *maximum : defaultMaximumPIDCapacity;
}

double findTimebaseFrequency(Machine& machine) {
    const auto frequency = Sysctl(machine.kernelValues()).uint64("hw.tbfrequency");
    if (frequency && *frequency != 0) return static_cast<double>(*frequency);
    const auto timebase = machine.processTable().timebase();
    if (!timebase || timebase->numerator == 0) return static_cast<double>(nanosecondsPerSecond);
    return static_cast<double>(nanosecondsPerSecond) * timebase->denominator / timebase->numerator;
}

/// Soon, and not for all new processes at once.
double firstRefreshPeriod(std::int32_t pid) {
    return (pid % 16) * 0.5 + 2.0;
}

/// Those whose questions are put together are looked up in different parts of the minute.
double firstCertainRefreshPeriod(std::int32_t pid) {
    return pid / 16 % 5 * refreshPeriod;
}

}  // namespace

ProcessReader::ProcessReader(std::shared_ptr<Machine> machine)
    : machine_(std::move(machine)),
      nativeTimebaseFrequencyHz_(findTimebaseFrequency(*machine_)),
      storage_(findMaximumPIDCapacity(*machine_)),
      names_(machine_->processTable()) {}

/// Fills the front of the buffer; false when nothing, or perhaps not everything, was listed.
bool ProcessReader::listPIDs() {
    ProcessTable& table = machine_->processTable();
    auto& buffer = storage_.pidBuffer;
    const int count = table.listAllPIDs({});
    if (count < 1 || storage_.maximumPIDCapacity() < 1) return false;
    const auto maximum = static_cast<std::size_t>(storage_.maximumPIDCapacity());
    const std::size_t wanted =
        std::min(maximum, static_cast<std::size_t>(count) + spareListEntries);
    if (wanted > maxListEntries) return false;
    if (buffer.size() < wanted) buffer.assign(wanted, 0);
    std::size_t listed = 0;
    for (int attempt = 1;; ++attempt) {
        const int answer = table.listAllPIDs(buffer);
        if (answer < 1) return false;
        listed = static_cast<std::size_t>(answer);
        if (buffer.size() > listed || buffer.size() >= maximum || attempt == listAttempts) break;
        const std::size_t larger = std::min(maximum, buffer.size() * 2);
        if (larger > maxListEntries) return false;
        buffer.resize(larger);
    }
    // A listing that fills the buffer may be cut short, and part of a list is worse than none.
    if (buffer.size() <= listed && buffer.size() < maximum) return false;
    storage_.lastListedPIDCount = static_cast<std::int64_t>(std::min(buffer.size(), listed));
    return true;
}

void ProcessReader::readRawProcesses(double now) {
    auto& processes = storage_.rawProcessBuffer;
    processes.clear();
    if (!listPIDs()) return;
    const auto listed = static_cast<std::size_t>(storage_.lastListedPIDCount);
    storage_.activePIDBuffer.clear();
    storage_.activePIDBuffer.reserve(listed);
    processes.reserve(listed);
    for (std::size_t i = 0; i < listed; ++i) {
        const std::int32_t pid = storage_.pidBuffer[i];
        if (pid < 1) continue;
        RawProcess process;
        if (!readProcess(pid, now, process)) continue;
        processes.push_back(std::move(process));
        storage_.activePIDBuffer.insert(pid);
    }
    forgetStaleMetadata();
}

bool ProcessReader::readProcess(std::int32_t pid, double now, RawProcess& process) {
    ProcessTable::TaskAllInfo info;
    if (machine_->processTable().taskAllInfo(pid, info) != ProcessTable::taskAllInfoSize) {
        return false;
    }
    const auto totalTime = checkedSum(info.totalUser, info.totalSystem);
    if (!totalTime) return false;
    process.totalMachTime = *totalTime;
    process.pid = pid;
    process.identity = {info.startSeconds, info.startMicroseconds};
    process.residentMemoryBytes = info.residentSize;
    const ProcessMetadata& known = metadata(pid, process.identity, now);
    process.name = known.name;
    process.command = known.command;
    return true;
}

const ProcessMetadata& ProcessReader::metadata(std::int32_t pid, const ProcessIdentity& identity,
                                               double now) {
    ProcessMetadata* known = storage_.metadataByPID.find(pid);
    const bool isSame = known && known->identity == identity;
    if (isSame && now < known->nextRefreshUptime) return *known;
    if (!known) known = &storage_.metadataByPID[pid];
    known->identity = identity;
    known->nextRefreshUptime = now + (isSame ? refreshPeriod : firstRefreshPeriod(pid));
    if (!isSame) known->nextCertainRefreshUptime = now + firstCertainRefreshPeriod(pid);
    // Who sleeps starts no other program, but its executable may be renamed.
    const bool isSettled = isSame && now < known->nextCertainRefreshUptime &&
                           !machine_->processTable().mayHaveNewPath(pid);
    if (isSettled) return *known;
    if (isSame) known->nextCertainRefreshUptime = now + certainRefreshPeriod;
    names_.lookUp(pid, *known);
    return *known;
}

void ProcessReader::forgetStaleMetadata() {
    // Every process that was read has an entry: as many entries means no other ones.
    auto& stale = storage_.staleMetadataPIDBuffer;
    stale.clear();
    if (storage_.metadataByPID.size() == storage_.activePIDBuffer.size()) return;
    storage_.metadataByPID.forEach([&](std::int32_t pid, const ProcessMetadata&) {
        if (!storage_.activePIDBuffer.contains(pid)) stale.push_back(pid);
    });
    for (const std::int32_t pid : stale)
        storage_.metadataByPID.erase(pid);
}

ProcessSample ProcessReader::read() {
    const double now = machine_->processInfo().systemUptime();
    readRawProcesses(now);
    const std::size_t active = storage_.rawProcessBuffer.size();
    if (active == 0) {
        storage_.scratchOversizeSinceUptime.reset();
        return ProcessSample::empty();
    }
    storage_.nextCPUByPID.clear();
    storage_.nextCPUByPID.reserve(active);
    const bool isBaseline = !previousReadUptime_ || !(now - *previousReadUptime_ > 0);
    ProcessSample sample;
    if (isBaseline) {
        takeBaseline();
    } else {
        sample = measure(now - *previousReadUptime_);
    }
    std::swap(storage_.previousCPUByPID, storage_.nextCPUByPID);
    previousReadUptime_ = now;
    storage_.trim(active, now);
    return sample;
}

void ProcessReader::takeBaseline() {
    for (const RawProcess& process : storage_.rawProcessBuffer) {
        storage_.nextCPUByPID[process.pid] = {process.identity, process.totalMachTime};
    }
}

ProcessSample ProcessReader::measure(double elapsed) {
    ProcessSample sample;
    sample.all.reserve(storage_.rawProcessBuffer.size());
    TopN byCPU([](const ProcessStats& p) { return p.cpuPercent; });
    TopN byMemory([](const ProcessStats& p) { return p.residentMemoryBytes; });
    for (RawProcess& process : storage_.rawProcessBuffer) {
        storage_.nextCPUByPID[process.pid] = {process.identity, process.totalMachTime};
        ProcessStats stats;
        stats.pid = process.pid;
        stats.name = std::move(process.name);
        stats.command = std::move(process.command);
        stats.cpuPercent = cpuPercent(process, elapsed);
        stats.residentMemoryBytes = process.residentMemoryBytes;
        sample.all.push_back(std::move(stats));
        byCPU.offer(sample.all, sample.all.size() - 1);
        byMemory.offer(sample.all, sample.all.size() - 1);
    }
    sample.sortedByCPU = byCPU.copyFrom(sample.all);
    sample.sortedByMemory = byMemory.copyFrom(sample.all);
    return sample;
}

double ProcessReader::cpuPercent(const RawProcess& process, double elapsed) const {
    const CPUTimeSample* const previous = storage_.previousCPUByPID.find(process.pid);
    if (!previous || !(previous->identity == process.identity)) return 0;
    if (previous->totalMachTime > process.totalMachTime) return 0;
    const auto spent = static_cast<double>(process.totalMachTime - previous->totalMachTime);
    const double percent = spent / nativeTimebaseFrequencyHz_ / elapsed * 100;
    return std::isfinite(percent) && percent > 0 ? percent : 0;
}

void ProcessReader::resetDeltas() {
    storage_.reset();
    previousReadUptime_.reset();
}

}  // namespace vantor

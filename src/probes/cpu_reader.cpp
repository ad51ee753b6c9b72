#include "probes/cpu_reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

#include "platform/sysctl.h"

namespace vantor {

namespace {

constexpr std::size_t countersPerProcessor = 4;
constexpr std::size_t loadAverageCount = 3;
constexpr std::uint32_t processorCountLimit = std::uint32_t{1} << 30;

/// Releases the kernel's array on every path.
class ArrayGuard {
  public:
    ArrayGuard(HostProcessors& host, const HostProcessors::ProcessorArray& array)
        : host_(host), array_(array) {}
    ArrayGuard(const ArrayGuard&) = delete;
    ArrayGuard& operator=(const ArrayGuard&) = delete;
    ~ArrayGuard() {
        host_.releaseArray(array_.words, std::size_t{array_.wordCount} * sizeof(std::uint32_t));
    }

  private:
    HostProcessors& host_;
    HostProcessors::ProcessorArray array_;
};

/// No machine has that many processors: a count past 32 bits means that the program is wrong.
std::int64_t checkedCount(std::int64_t count) {
    if (!std::in_range<std::int32_t>(count)) std::abort();
    return count;
}

}  // namespace

class CPUReader::PortGuard {
  public:
    explicit PortGuard(HostProcessors& host) : host_(host), port_(host.acquirePort()) {}
    PortGuard(const PortGuard&) = delete;
    PortGuard& operator=(const PortGuard&) = delete;
    ~PortGuard() { host_.releasePort(port_); }
    HostProcessors::Port port() const { return port_; }

  private:
    HostProcessors& host_;
    HostProcessors::Port port_;
};

CPUReader::CPUReader(std::shared_ptr<Machine> machine)
    : machine_(std::move(machine)), temperatures_(machine_), loadAverageBuffer_(loadAverageCount) {}

const CPUStats* CPUReader::read() {
    const PortGuard guard(machine_->hostProcessors());
    const auto ticks = readTotalTicks(guard.port());
    if (!ticks) return nullptr;
    const bool coresWereRead = readCoreTicks(guard.port());
    const auto previous = std::exchange(previousTotalTicks_, ticks);
    const TickDelta delta = previous ? TickDelta::between(*previous, *ticks) : TickDelta{};
    if (delta.sum() == 0) {
        if (coresWereRead) adoptCoreBaseline();
        return nullptr;
    }
    const Percentages shares = Percentages::of(delta);
    updateCoreUsage(coresWereRead);
    updateLoadAverage();
    const HardwareInfo& hardware = hardwareInfo();
    stats_.model = hardware.model;
    stats_.totalUsage = shares.total;
    stats_.userUsage = shares.user;
    stats_.systemUsage = shares.system;
    stats_.idleUsage = shares.idle;
    stats_.perCoreUsage = lastCoreUsage_;
    stats_.logicalCoreCount = hardware.logicalCoreCount;
    stats_.physicalCoreCount = hardware.physicalCoreCount;
    stats_.loadAverage = lastLoadAverage_;
    stats_.nominalFrequencyHz = hardware.nominalFrequencyHz;
    stats_.temperatureCelsius = temperatures_.cpuTemperature();
    return &stats_;
}

void CPUReader::resetDeltas() {
    previousTotalTicks_.reset();
    previousCoreTicks_.clear();
    lastCoreUsage_.clear();
}

std::optional<TickSet> CPUReader::readTotalTicks(HostProcessors::Port port) {
    std::array<std::uint32_t, countersPerProcessor> counters{};
    const auto count = machine_->hostProcessors().totalTicks(port, counters);
    if (!count || *count < countersPerProcessor) return std::nullopt;
    return TickSet{counters[0], counters[1], counters[2], counters[3]};
}

bool CPUReader::readCoreTicks(HostProcessors::Port port) {
    coreTickBuffer_.clear();
    HostProcessors& host = machine_->hostProcessors();
    const auto array = host.processorTicks(port);
    if (!array || !array->words) return false;
    const ArrayGuard guard(host, *array);
    const std::uint32_t count = array->processorCount;
    if (count == 0 || count >= processorCountLimit) return false;
    if (array->wordCount < count * countersPerProcessor) return false;
    coreTickBuffer_.reserve(count);
    for (const std::uint32_t* words = array->words; coreTickBuffer_.size() < count;
         words += countersPerProcessor) {
        coreTickBuffer_.push_back({words[0], words[1], words[2], words[3]});
    }
    return true;
}

void CPUReader::adoptCoreBaseline() {
    if (previousCoreTicks_.size() != coreTickBuffer_.size()) lastCoreUsage_.clear();
    previousCoreTicks_.swap(coreTickBuffer_);
    coreTickBuffer_.clear();
}

void CPUReader::updateCoreUsage(bool coresWereRead) {
    if (!coresWereRead) return;
    if (previousCoreTicks_.empty() || previousCoreTicks_.size() != coreTickBuffer_.size()) {
        adoptCoreBaseline();
        lastCoreUsage_.clear();
        return;
    }
    lastCoreUsage_.clear();
    for (std::size_t i = 0; i < coreTickBuffer_.size(); ++i) {
        lastCoreUsage_.push_back(
            busyShare(TickDelta::between(previousCoreTicks_[i], coreTickBuffer_[i])));
    }
    previousCoreTicks_.swap(coreTickBuffer_);
    coreTickBuffer_.clear();
}

void CPUReader::updateLoadAverage() {
    const int answered = machine_->loadAverages().getloadavg(loadAverageBuffer_);
    if (answered < 1) return;
    const auto count = std::min(static_cast<std::size_t>(answered), loadAverageBuffer_.size());
    const auto end = loadAverageBuffer_.begin() + static_cast<std::ptrdiff_t>(count);
    const bool plausible = std::all_of(loadAverageBuffer_.begin(), end,
                                       [](double v) { return std::isfinite(v) && v >= 0; });
    if (plausible) lastLoadAverage_.assign(loadAverageBuffer_.begin(), end);
}

const CPUReader::HardwareInfo& CPUReader::hardwareInfo() {
    if (cachedHardwareInfo_) return *cachedHardwareInfo_;
    const Sysctl sysctl(machine_->kernelValues());
    HardwareInfo& info = cachedHardwareInfo_.emplace(HardwareInfo{});
    if (auto brand = sysctl.string("machdep.cpu.brand_string")) {
        info.model = std::move(*brand);
    } else {
        info.model = sysctl.string("hw.model").value_or("Unknown Processor");
    }
    const auto logical = sysctl.int32("hw.logicalcpu");
    info.logicalCoreCount =
        logical ? *logical : checkedCount(machine_->processInfo().processorCount());
    const auto physical = sysctl.int32("hw.physicalcpu");
    info.physicalCoreCount =
        physical ? *physical : checkedCount(machine_->processInfo().activeProcessorCount());
    info.nominalFrequencyHz = sysctl.uint64("hw.cpufrequency");
    return info;
}

}  // namespace vantor

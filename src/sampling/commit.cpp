#include "sampling/commit.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

#include "sampling/histories.h"
#include "sampling/providers.h"

namespace vantor {

namespace {

double usedFraction(const MemoryStats& memory) {
    if (memory.totalBytes == 0) return 0;
    return std::clamp(
        static_cast<double>(memory.usedBytes) / static_cast<double>(memory.totalBytes), 0.0, 1.0);
}

/// The history follows the first device of the list; another first device starts a new one.
void followHistoryDevice(const std::vector<GPUStats>& gpus, DashboardState& state) {
    if (!gpus.empty() && state.gpuHistoryDeviceID != gpus.front().id) {
        state.histories.gpu.clear();
        state.histories.times.gpu.clear();
        state.gpuHistoryDeviceID = gpus.front().id;
    } else if (gpus.empty() && state.gpuHistoryDeviceID) {
        state.histories.gpu.clear();
        state.histories.times.gpu.clear();
        state.gpuHistoryDeviceID.reset();
    }
}

/// What a sample needs to go into its history.
struct SampleMoment {
    std::size_t limit;
    double uptime;
};

/// How a section's result has changed the state.
enum class Change {
    none,
    told,     ///< nothing to redraw, but to be published
    revised,  ///< the section is to be redrawn
};

// One `commitSection` for each section, found by its type: one that is missing does not compile.

Change commitSection(CPUStats&& cpu, DashboardState& state, const SampleMoment& moment) {
    std::swap(state.snapshot.cpu, cpu);
    appendToHistory(state.snapshot.cpu.totalUsage, state.histories.cpu, moment.limit);
    appendToHistory(moment.uptime, state.histories.times.cpu, moment.limit);
    return Change::revised;
}

Change commitSection(MemoryStats&& memory, DashboardState& state, const SampleMoment& moment) {
    state.snapshot.memory = memory;
    appendToHistory(usedFraction(memory), state.histories.memory, moment.limit);
    appendToHistory(moment.uptime, state.histories.times.memory, moment.limit);
    return Change::revised;
}

Change commitSection(NetworkStats&& network, DashboardState& state, const SampleMoment& moment) {
    appendToHistory(network.downloadBytesPerSecond, state.histories.download, moment.limit);
    appendToHistory(network.uploadBytesPerSecond, state.histories.upload, moment.limit);
    appendToHistory(moment.uptime, state.histories.times.network, moment.limit);
    state.snapshot.network = std::move(network);
    return Change::revised;
}

Change commitSection(SystemInfoStats&& system, DashboardState& state, const SampleMoment&) {
    if (system == state.snapshot.system) return Change::none;
    state.snapshot.system = std::move(system);
    return Change::revised;
}

Change commitSection(ProcessSample&& sample, DashboardState& state, const SampleMoment&) {
    state.snapshot.processes = std::move(sample.all);
    state.processesByCPU = std::move(sample.sortedByCPU);
    state.processesByMemory = std::move(sample.sortedByMemory);
    return Change::revised;
}

Change commitSection(std::vector<GPUStats>&& gpus, DashboardState& state,
                     const SampleMoment& moment) {
    // That there is nothing is to be published too, once.
    const bool isFirst = !std::exchange(state.answered.gpus, true);
    const bool isEqual = gpus == state.snapshot.gpus;
    followHistoryDevice(gpus, state);
    if (!isEqual) state.snapshot.gpus = std::move(gpus);
    const auto& current = state.snapshot.gpus;
    const bool moves = !current.empty() && current.front().utilization.has_value();
    if (moves) {
        appendToHistory(*current.front().utilization, state.histories.gpu, moment.limit);
        appendToHistory(moment.uptime, state.histories.times.gpu, moment.limit);
    }
    // An unchanged list still moves the graph on while there is a utilization to draw.
    if (!isEqual || moves) return Change::revised;
    return isFirst ? Change::told : Change::none;
}

Change commitSection(std::vector<VolumeStats>&& volumes, DashboardState& state,
                     const SampleMoment&) {
    const bool isFirst = !std::exchange(state.answered.volumes, true);
    if (volumes == state.snapshot.volumes) return isFirst ? Change::told : Change::none;
    state.snapshot.volumes = std::move(volumes);
    return Change::revised;
}

Change commitPower(std::optional<PowerStats>&& power, DashboardState& state) {
    if (power == state.snapshot.power) return Change::none;
    state.snapshot.power = std::move(power);
    return Change::revised;
}

/// The counter of each section, in the order of pendingSections.
constexpr std::array sectionRevisions{
    &Revisions::cpu,       &Revisions::memory, &Revisions::network, &Revisions::system,
    &Revisions::processes, &Revisions::gpu,    &Revisions::storage};
static_assert(sectionRevisions.size() == std::tuple_size_v<decltype(pendingSections)>);
// Power is the one that is not among them; it is drawn with the system's section.
static_assert(std::tuple_size_v<AllProviders> == sectionRevisions.size() + 1);

bool note(Change change, std::uint64_t Revisions::*revision, DashboardState& state) {
    if (change == Change::revised) ++(state.revisions.*revision);
    return change != Change::none;
}

}  // namespace

bool applyUpdate(PendingUpdate&& update, DashboardState& state, std::size_t limit, Timestamp now,
                 double uptime) {
    state.snapshot.timestamp = now;
    bool changed = false;
    std::size_t place = 0;
    const auto apply = [&](auto section) {
        const auto revision = sectionRevisions[place++];
        if (auto& result = update.*section)
            changed |=
                note(commitSection(std::move(*result), state, {limit, uptime}), revision, state);
    };
    std::apply([&](auto... section) { (apply(section), ...); }, pendingSections);
    if (update.hasPowerUpdate)
        changed |= note(commitPower(std::move(update.power), state), &Revisions::system, state);
    return changed;
}

}  // namespace vantor

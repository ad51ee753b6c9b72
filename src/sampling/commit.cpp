#include "sampling/commit.h"

#include <functional>
#include <tuple>
#include <utility>

#include "sampling/histories.h"
#include "sampling/providers.h"

namespace vantor {

namespace {

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

// The sections that are more than a part of the snapshot, found by their types.

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

template <class Provider>
Change commit(typename Provider::Section&& section, DashboardState& state,
              const SampleMoment& moment) {
    if constexpr (HasSeries<Provider>) {
        const auto append = [&](const auto& series) {
            appendToHistory(std::invoke(series.value, section), state.histories.*series.history,
                            moment.limit);
        };
        std::apply([&](const auto&... series) { (append(series), ...); }, Provider::series);
        appendToHistory(moment.uptime, state.histories.times.*Provider::times, moment.limit);
    } else if constexpr (HasRecord<Provider>) {
        if (section == state.snapshot.*Provider::record) return Change::none;
    } else {
        return commitSection(std::move(section), state, moment);
    }
    if constexpr (HasRecord<Provider>) state.snapshot.*Provider::record = std::move(section);
    return Change::revised;
}

}  // namespace

bool applyUpdate(PendingUpdate&& update, DashboardState& state, std::size_t limit, Timestamp now,
                 double uptime) {
    state.snapshot.timestamp = now;
    bool changed = false;
    forEachProvider([&]<class Provider>(Provider) {
        auto& section = update.of<Provider>();
        if (!section) return;
        const Change change = commit<Provider>(std::move(*section), state, {limit, uptime});
        if (change == Change::revised) ++(state.revisions.*Provider::revision);
        changed |= change != Change::none;
    });
    return changed;
}

}  // namespace vantor

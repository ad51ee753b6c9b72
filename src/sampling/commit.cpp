#include "sampling/commit.h"

#include <algorithm>
#include <array>
#include <utility>

#include "settings/app_settings.h"

namespace vantor {

namespace {

double usedFraction(const MemoryStats& memory) {
    if (memory.totalBytes == 0) return 0;
    return std::clamp(
        static_cast<double>(memory.usedBytes) / static_cast<double>(memory.totalBytes), 0.0, 1.0);
}

bool dropOldest(std::vector<double>& history, std::size_t limit) {
    if (history.size() <= limit) return false;
    history.erase(history.begin(),
                  history.begin() + static_cast<std::ptrdiff_t>(history.size() - limit));
    return true;
}

/// The history follows the first device of the list; another first device starts a new one.
void followHistoryDevice(const std::vector<GPUStats>& gpus, DashboardState& state) {
    if (!gpus.empty() && state.gpuHistoryDeviceID != gpus.front().id) {
        state.histories.gpu.clear();
        state.gpuHistoryDeviceID = gpus.front().id;
    } else if (gpus.empty() && state.gpuHistoryDeviceID) {
        state.histories.gpu.clear();
        state.gpuHistoryDeviceID.reset();
    }
}

bool applyGPUs(std::vector<GPUStats>&& gpus, DashboardState& state, std::size_t limit) {
    const bool isEqual = gpus == state.snapshot.gpus;
    followHistoryDevice(gpus, state);
    if (!isEqual) state.snapshot.gpus = std::move(gpus);
    const auto& current = state.snapshot.gpus;
    const bool moves = !current.empty() && current.front().utilization.has_value();
    if (moves) appendToHistory(*current.front().utilization, state.histories.gpu, limit);
    // An unchanged list still moves the graph on while there is a utilization to draw.
    if (isEqual && !moves) return false;
    ++state.revisions.gpu;
    return true;
}

bool applyFastSections(PendingUpdate& update, DashboardState& state, std::size_t limit) {
    bool changed = false;
    if (update.cpu) {
        std::swap(state.snapshot.cpu, *update.cpu);
        appendToHistory(state.snapshot.cpu.totalUsage, state.histories.cpu, limit);
        ++state.revisions.cpu;
        changed = true;
    }
    if (update.memory) {
        state.snapshot.memory = *update.memory;
        appendToHistory(usedFraction(*update.memory), state.histories.memory, limit);
        ++state.revisions.memory;
        changed = true;
    }
    if (update.network) {
        state.snapshot.network = std::move(*update.network);
        const NetworkStats& network = state.snapshot.network;
        appendToHistory(network.downloadBytesPerSecond, state.histories.download, limit);
        appendToHistory(network.uploadBytesPerSecond, state.histories.upload, limit);
        ++state.revisions.network;
        changed = true;
    }
    if (update.system && *update.system != state.snapshot.system) {
        state.snapshot.system = std::move(*update.system);
        ++state.revisions.system;
        changed = true;
    }
    return changed;
}

bool applySlowSections(PendingUpdate& update, DashboardState& state, std::size_t limit) {
    bool changed = false;
    if (update.processSample) {
        state.snapshot.processes = std::move(update.processSample->all);
        state.processesByCPU = std::move(update.processSample->sortedByCPU);
        state.processesByMemory = std::move(update.processSample->sortedByMemory);
        ++state.revisions.processes;
        changed = true;
    }
    // That there is nothing is news too, once.
    if (update.gpus && !std::exchange(state.answered.gpus, true)) changed = true;
    if (update.volumes && !std::exchange(state.answered.volumes, true)) changed = true;
    if (update.gpus && applyGPUs(std::move(*update.gpus), state, limit)) changed = true;
    if (update.volumes && *update.volumes != state.snapshot.volumes) {
        state.snapshot.volumes = std::move(*update.volumes);
        ++state.revisions.storage;
        changed = true;
    }
    if (update.hasPowerUpdate && update.power != state.snapshot.power) {
        state.snapshot.power = std::move(update.power);
        ++state.revisions.system;
        changed = true;
    }
    return changed;
}

}  // namespace

std::size_t historyLimit(std::int64_t historyLength) {
    return static_cast<std::size_t>(AppSettings::clampHistoryLength(historyLength));
}

void appendToHistory(double value, std::vector<double>& history, std::size_t limit) {
    history.push_back(value);
    dropOldest(history, limit);
}

bool trimHistories(Histories& histories, std::size_t limit) {
    bool trimmed = false;
    for (auto* history : {&histories.cpu, &histories.memory, &histories.download, &histories.upload,
                          &histories.gpu}) {
        trimmed = dropOldest(*history, limit) || trimmed;
    }
    return trimmed;
}

bool applyUpdate(PendingUpdate&& update, DashboardState& state, std::size_t limit, Timestamp now) {
    state.snapshot.timestamp = now;
    const bool fast = applyFastSections(update, state, limit);
    const bool slow = applySlowSections(update, state, limit);
    return fast || slow;
}

}  // namespace vantor

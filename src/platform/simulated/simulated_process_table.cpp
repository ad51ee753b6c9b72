#include "platform/simulated/simulated_process_table.h"

#include <algorithm>
#include <utility>

namespace vantor {

namespace {

int copyOut(const std::string& text, std::span<char> buffer) {
    const std::size_t count = std::min(text.size(), buffer.size());
    std::copy_n(text.begin(), count, buffer.begin());
    return static_cast<int>(count);
}

}  // namespace

SimulatedProcessTable::Process& SimulatedProcessTable::add(std::int32_t pid, std::string path,
                                                           std::uint64_t resident) {
    Process process;
    process.pid = pid;
    process.path = std::move(path);
    process.info.startSeconds = 1000 + static_cast<std::uint64_t>(pid);
    process.info.residentSize = resident;
    processes.push_back(std::move(process));
    return processes.back();
}

SimulatedProcessTable::Process* SimulatedProcessTable::find(std::int32_t pid) {
    for (std::size_t i = 0; i < processes.size(); ++i, ++cursor_) {
        if (cursor_ >= processes.size()) cursor_ = 0;
        if (processes[cursor_].pid == pid) return &processes[cursor_];
    }
    return nullptr;
}

void SimulatedProcessTable::remove(std::int32_t pid) {
    std::erase_if(processes, [pid](const Process& p) { return p.pid == pid; });
}

void SimulatedProcessTable::spend(std::int32_t pid, std::uint64_t time) {
    if (Process* const process = find(pid)) process->info.totalUser += time;
}

int SimulatedProcessTable::listAllPIDs(std::span<std::int32_t> buffer) {
    if (buffer.empty()) return claimedCount.value_or(static_cast<int>(processes.size()));
    ++listings;
    bufferSizes.push_back(buffer.size());
    if (onList) onList();
    const std::size_t count = std::min(buffer.size(), processes.size());
    for (std::size_t i = 0; i < count; ++i)
        buffer[i] = processes[i].pid;
    return claimedListed.value_or(static_cast<int>(count));
}

int SimulatedProcessTable::taskAllInfo(std::int32_t pid, TaskAllInfo& info) {
    const Process* const process = find(pid);
    if (!process || !process->isReadable) return 0;
    info = process->info;
    return infoSize;
}

int SimulatedProcessTable::path(std::int32_t pid, std::span<char> buffer) {
    ++pathLookups;
    const Process* const process = find(pid);
    const int count = process ? copyOut(process->path, buffer) : 0;
    return claimedPathLength.value_or(count);
}

bool SimulatedProcessTable::mayHaveNewPath(std::int32_t pid) {
    const Process* const process = find(pid);
    return !process || process->mayHaveNewPath;
}

int SimulatedProcessTable::name(std::int32_t pid, std::span<char> buffer) {
    ++nameLookups;
    const Process* const process = find(pid);
    const int count = process ? copyOut(process->name, buffer) : 0;
    return claimedNameLength.value_or(count);
}

}  // namespace vantor

#include "sequences/process_oracle.h"

#include <algorithm>
#include <utility>

#include "sequences/disagreement.h"

namespace vantor {

namespace {

using List = std::vector<ProcessStats>;

constexpr std::size_t heaviestShown = 18;

/// By sorting all of them. The figures are those that the reader gave, which were judged before.
template <class Weight>
std::vector<std::int32_t> heaviest(List list, Weight ProcessStats::*weight) {
    std::sort(list.begin(), list.end(), [&](const ProcessStats& a, const ProcessStats& b) {
        return a.*weight != b.*weight ? a.*weight > b.*weight : a.pid < b.pid;
    });
    std::vector<std::int32_t> pids;
    for (std::size_t i = 0; i < std::min(heaviestShown, list.size()); ++i)
        pids.push_back(list[i].pid);
    return pids;
}

void judgeShortList(Disagreement& disagreement, std::string_view what, const List& shown,
                    const List& all, const std::vector<std::int32_t>& expected) {
    disagreement.expectSame("length", shown.size(), expected.size(), what);
    for (std::size_t i = 0; i < std::min(shown.size(), expected.size()); ++i) {
        disagreement.expectSame("pid at " + std::to_string(i), shown[i].pid, expected[i], what);
        const auto row = std::find_if(all.begin(), all.end(), [&](const ProcessStats& each) {
            return each.pid == shown[i].pid;
        });
        const bool isSame = row != all.end() && *row == shown[i];
        disagreement.expectSame("row is that of the full list", isSame, true, what);
    }
}

}  // namespace

void ProcessOracle::hear(Reading reading) {
    for (const Process& process : reading.processes)
        paths_[process.birth].insert(process.path);
    history_.push_back(std::move(reading));
}

/// The latest reading before the last one that listed anything.
const ProcessOracle::Reading* ProcessOracle::baseline() const {
    for (std::size_t place = history_.size() - 1; place > firstSinceReset_; --place) {
        if (!history_[place - 1].processes.empty()) return &history_[place - 1];
    }
    return nullptr;
}

std::optional<std::string> ProcessOracle::judge(const ProcessSample& actual) const {
    const Reading& now = history_.back();
    const Reading* const past = baseline();
    const double elapsed = past ? now.uptime - past->uptime : 0;
    Disagreement disagreement;
    if (now.processes.empty() || elapsed <= 0) {
        disagreement.expectSame("sample is empty", actual == ProcessSample::empty(), true);
        return disagreement.text();
    }
    disagreement.expectSame("processes", actual.all.size(), now.processes.size());
    if (disagreement.text()) return disagreement.text();

    std::map<std::uint64_t, std::uint64_t> spentBefore;
    for (const Process& process : past->processes)
        spentBefore[process.birth] = process.spent;
    for (std::size_t i = 0; i < now.processes.size(); ++i) {
        const Process& process = now.processes[i];
        const ProcessStats& shown = actual.all[i];
        const std::string whose = "process " + std::to_string(process.pid);
        const auto before = spentBefore.find(process.birth);
        long double percent = 0;
        if (before != spentBefore.end() && before->second < process.spent) {
            const auto spent = static_cast<long double>(process.spent - before->second);
            percent = spent / unitsPerSecond_ / elapsed * 100;
        }
        disagreement.expectSame("pid", shown.pid, process.pid, whose);
        disagreement.expectClose("percent", shown.cpuPercent, percent, whose);
        disagreement.expectSame("memory", shown.residentMemoryBytes, process.resident, whose);
        // A path may be as old as its schedule allows, but is never another process's.
        const bool isItsOwn = paths_.at(process.birth).contains(shown.command);
        disagreement.expectSame("path is its own", isItsOwn, true, whose);
    }
    judgeShortList(disagreement, "the heaviest by processor", actual.sortedByCPU, actual.all,
                   heaviest(actual.all, &ProcessStats::cpuPercent));
    judgeShortList(disagreement, "the heaviest by memory", actual.sortedByMemory, actual.all,
                   heaviest(actual.all, &ProcessStats::residentMemoryBytes));
    return disagreement.text();
}

}  // namespace vantor

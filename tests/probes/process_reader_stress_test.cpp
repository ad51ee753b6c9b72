#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "probes/process_world.h"

/// Thousands of processes that are born and die at random, identifiers used again, against a plain
/// recomputation that keeps books by birth and not by identifier.
namespace vantor::process_reader_stress_test {
namespace {

using List = std::vector<ProcessStats>;

constexpr std::size_t population = 3000;
constexpr int passes = 300;
constexpr std::int32_t highestPID = 5000;
constexpr double nanosecondsPerSecond = 1e9;

class Bustle : public ProcessWorld {
  public:
    Bustle() {
        while (table.processes.size() < population)
            bear();
    }

    /// Some die, as many are born, some of them with the identifier of a dead one; all may spend
    /// time and change in size. Some cannot be read for the time being.
    void step(double seconds) {
        const std::size_t deaths = random_() % 200;
        for (std::size_t i = 0; i < deaths; ++i)
            die(random_() % table.processes.size());
        for (auto& process : table.processes) {
            process.isReadable = random_() % 50 != 0;
            if (random_() % 3 != 0) continue;
            const std::uint64_t time = random_() % static_cast<std::uint64_t>(seconds * 4e9);
            process.info.totalUser += time / 2;
            process.info.totalSystem += time - time / 2;
            process.info.residentSize = random_() % 40 * 4096;
        }
        while (table.processes.size() < population)
            bear();
        std::sort(table.processes.begin(), table.processes.end(),
                  [](const auto& a, const auto& b) { return a.pid < b.pid; });
    }

    /// What each process that was read now and at the last pass has spent in between.
    List expected(double seconds) {
        List list;
        std::map<std::uint64_t, std::uint64_t> seen;
        for (const auto& process : table.processes) {
            if (!process.isReadable) continue;
            const std::uint64_t total = process.info.totalUser + process.info.totalSystem;
            seen[birthOf(process)] = total;
            ProcessStats stats;
            stats.pid = process.pid;
            stats.command = process.path;
            stats.residentMemoryBytes = process.info.residentSize;
            const auto before = seen_.find(birthOf(process));
            if (before != seen_.end()) {
                stats.cpuPercent = static_cast<double>(total - before->second) /
                                   nanosecondsPerSecond / seconds * 100;
            }
            list.push_back(stats);
        }
        seen_.swap(seen);
        return list;
    }

    int reused() const { return reused_; }

  private:
    static std::uint64_t birthOf(const SimulatedProcessTable::Process& process) {
        return process.info.startSeconds;
    }

    void bear() {
        std::int32_t pid = 0;
        while (pid == 0 || living_.contains(pid))
            pid = static_cast<std::int32_t>(random_() % highestPID) + 1;
        living_.insert(pid);
        if (!everUsed_.insert(pid).second) ++reused_;
        ++births_;
        auto& process = table.add(pid, "/bin/p" + std::to_string(births_), random_() % 1000);
        process.info.startSeconds = births_;
        process.info.totalUser = random_() % 5'000'000'000;
    }

    void die(std::size_t place) {
        living_.erase(table.processes[place].pid);
        table.processes.erase(table.processes.begin() + static_cast<std::ptrdiff_t>(place));
    }

    std::mt19937_64 random_{31337};
    std::set<std::int32_t> living_;
    std::set<std::int32_t> everUsed_;
    std::map<std::uint64_t, std::uint64_t> seen_;  // by birth
    std::uint64_t births_ = 0;
    int reused_ = 0;
};

template <class Weigh>
List heaviest(List list, Weigh weigh) {
    std::stable_sort(list.begin(), list.end(), [&](const ProcessStats& a, const ProcessStats& b) {
        return weigh(a) != weigh(b) ? weigh(a) > weigh(b) : a.pid < b.pid;
    });
    if (list.size() > 18) list.resize(18);
    return list;
}

/// Names may be as old as their schedule allows, except for those of newborns; all else is exact.
void expectSame(const List& actual, const List& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        ASSERT_EQ(actual[i].pid, expected[i].pid);
        ASSERT_DOUBLE_EQ(actual[i].cpuPercent, expected[i].cpuPercent) << actual[i].pid;
        ASSERT_EQ(actual[i].residentMemoryBytes, expected[i].residentMemoryBytes);
        ASSERT_EQ(actual[i].command, expected[i].command) << "each birth has its own path";
    }
}

TEST(ProcessReaderStress, AgreesWithAPlainRecomputationWhileProcessesComeAndGo) {
    Bustle bustle;
    bustle.expected(1);
    EXPECT_EQ(bustle.reader->read(), ProcessSample::empty());
    for (int pass = 0; pass < passes; ++pass) {
        SCOPED_TRACE(pass);
        const double seconds = pass % 3 == 0 ? 0.5 : 2;
        bustle.step(seconds);
        const ProcessSample sample = bustle.readAfter(seconds);
        const List expected = bustle.expected(seconds);
        expectSame(sample.all, expected);
        expectSame(sample.sortedByCPU,
                   heaviest(expected, [](const ProcessStats& p) { return p.cpuPercent; }));
        expectSame(sample.sortedByMemory,
                   heaviest(expected, [](const ProcessStats& p) { return p.residentMemoryBytes; }));
        if (testing::Test::HasFatalFailure()) return;
    }
    EXPECT_GT(bustle.reused(), 1000);
}

}  // namespace
}  // namespace vantor::process_reader_stress_test

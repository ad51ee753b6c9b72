#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/linux/linux_machine.h"
#include "platform/linux/processes/process_tree.h"
#include "probes/process_reader.h"
#include "sampling/counted_passes.h"

/// A pass over the processes hands its sample away, and asks for memory for that alone: a list of
/// all and two short ones, however many processes there are.
namespace vantor::process_allocation_test {
namespace {

constexpr std::size_t listsOfASample = 3;

/// A machine in a folder with `count` processes.
class Processes : public ProcessTree {
  public:
    explicit Processes(std::int32_t count) {
        tree.becomeOwnProc();
        for (std::int32_t pid = 1; pid <= count; ++pid) {
            start(pid, {.name = "a name longer than a short text"});
            tree.linkProc(file(pid, "exe"), "/usr/libexec/a-path-longer-than-a-short-text");
        }
        sayLastPID(count);
    }
    std::shared_ptr<LinuxMachine> machine() const {
        LinuxCalls calls = LinuxCalls::live();
        calls.processClocks = clocks;
        return std::make_shared<LinuxMachine>(tree.roots(), calls);
    }
};

/// What each of some passes allocates, after one that reads everything. `step` comes before each.
template <class Step>
std::vector<std::size_t> allocationsOfPasses(ProcessReader& reader, int count, Step step) {
    std::vector<std::size_t> allocations;
    allocations.reserve(static_cast<std::size_t>(count));
    for (int i = -3; i < count; ++i) {
        step();
        const std::size_t before = countedAllocations();
        const ProcessSample sample = reader.read();
        if (i >= 0) allocations.push_back(countedAllocations() - before);
    }
    return allocations;
}

TEST(ProcessAllocations, OfAPassAreItsListsHoweverManyProcessesThereAre) {
    for (const std::int32_t count : {20, 1500}) {
        const Processes processes(count);
        ProcessReader reader(processes.machine());
        // A quarter of them runs each time, and no pass is like the other.
        int pass = 0;
        const auto step = [&] {
            ++pass;
            processes.clocks->seconds += 1;
            for (auto& [pid, time] : processes.clocks->values)
                time += (pid + pass) % 4 == 0 ? 1000U : 0U;
        };
        const auto allocations = allocationsOfPasses(reader, 40, step);
        EXPECT_EQ(*std::max_element(allocations.begin(), allocations.end()), listsOfASample)
            << count;
        EXPECT_EQ(reader.read().all.size(), static_cast<std::size_t>(count));
    }
}

TEST(ProcessAllocations, AreThoseListsWithoutClocksToo) {
    const Processes processes(200);
    processes.tree.removeProc("self");
    ProcessReader reader(processes.machine());
    const auto allocations = allocationsOfPasses(reader, 100, [] {});
    EXPECT_EQ(*std::max_element(allocations.begin(), allocations.end()), listsOfASample);
}

// Others start and end processes meanwhile, whose names are texts of their own.
TEST(ProcessAllocations, OnThisMachineAreThoseListsMostly) {
    ProcessReader reader(std::make_shared<LinuxMachine>());
    auto allocations = allocationsOfPasses(reader, 301, [] {});
    std::sort(allocations.begin(), allocations.end());
    EXPECT_EQ(allocations.front(), listsOfASample);
    EXPECT_EQ(allocations[150], listsOfASample) << "half of the passes";
}

}  // namespace
}  // namespace vantor::process_allocation_test

#include <gtest/gtest.h>

#include <memory>

#include "platform/linux/linux_machine.h"
#include "platform/simulated/simulated_machine.h"
#include "probes/network_reader.h"
#include "sampling/counted_allocations.h"

/// The steady state of a network reading allocates nothing, whatever traffic does to the order of
/// the rows and also when the host's name and the primary interface are looked up again.
namespace vantor::network_allocation_test {
namespace {

constexpr int warmUpReads = 50;
constexpr int reads = 1000;

struct Outcome {
    int records = 0;
    std::size_t allocations = 0;
};

/// `advance(i)` gives the uptime of the i-th reading.
template <class Advance>
Outcome readOften(NetworkReader& reader, Advance advance) {
    for (int i = 0; i < warmUpReads; ++i)
        reader.read(true, advance(i));
    Outcome outcome;
    const std::size_t before = countedAllocations();
    for (int i = warmUpReads; i < warmUpReads + reads; ++i)
        outcome.records += reader.read(true, advance(i)) ? 1 : 0;
    outcome.allocations = countedAllocations() - before;
    return outcome;
}

void expectNoAllocations(const std::shared_ptr<SimulatedMachine>& machine) {
    auto& network = machine->interfaceCalls();
    network.receivedGrowth = 1000;
    network.sentGrowth = 100;
    machine->processInfo().host = "a-host-name-longer-than-a-short-text.local";
    NetworkReader reader(machine);
    const Outcome outcome = readOften(reader, [&network](int i) {
        // Another interface is the busiest one every time, so the rows trade places.
        auto& busiest = network.interfaces[static_cast<unsigned>(i) % network.interfaces.size()];
        busiest.received += 50'000;
        return static_cast<double>(i);
    });
    EXPECT_EQ(outcome.records, reads);
    EXPECT_EQ(outcome.allocations, 0u);
    EXPECT_GT(machine->dynamicStore().lookups, reads / 6) << "lookups were among them";
}

TEST(NetworkAllocations, OfAReadingOnALaptopAreNone) {
    expectNoAllocations(SimulatedMachine::laptop());
}

TEST(NetworkAllocations, OfAReadingOnADesktopWithManyInterfacesAreNone) {
    expectNoAllocations(SimulatedMachine::desktop());
}

TEST(NetworkAllocations, OfAReadingOnThisMachineAreNone) {
    NetworkReader reader(std::make_shared<LinuxMachine>());
    // A second between two readings, as far as the reader knows.
    const Outcome outcome = readOften(reader, [](int i) { return static_cast<double>(i); });
    EXPECT_EQ(outcome.allocations, 0u);
    if (outcome.records == 0) GTEST_SKIP() << "this machine has no network to read";
    EXPECT_EQ(outcome.records, reads);
}

}  // namespace
}  // namespace vantor::network_allocation_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string>

#include "platform/macos/fake_mac_kernel.h"
#include "platform/macos/memory/mac_host_memory.h"
#include "platform/macos/processes/mac_process_table.h"
#include "platform/macos/processor/mac_host_processors.h"
#include "platform/macos/processor/mac_load_averages.h"
#include "platform/macos/system/mac_kernel_values.h"
#include "platform/simulated/simulated_machine.h"
#include "platform/sysctl.h"
#include "probes/cpu_reader.h"
#include "probes/memory_reader.h"
#include "probes/process_reader.h"

namespace vantor::kernel_calls_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A simulated machine whose kernel is asked by the Mac's own classes.
class MachineOfCalls : public Machine {
  public:
    explicit MachineOfCalls(std::shared_ptr<SimulatedMachine> rest) : rest_(std::move(rest)) {
        calls_.hostMemory = memory_;
        calls_.hostProcessors = processors_;
        calls_.kernelValues = values_;
        calls_.processTable = table_;
    }

    const MachineCalls& calls() const override { return calls_; }

  private:
    std::shared_ptr<SimulatedMachine> rest_;
    MacHostMemory memory_;
    MacHostProcessors processors_;
    MacKernelValues values_;
    MacProcessTable table_;
    MachineCalls calls_{rest_->calls()};
};

class MacKernelCalls : public testing::Test {
  protected:
    void setText(const std::string& name, const std::string& text) {
        auto& bytes = kernel.values[name];
        bytes.resize(text.size() + 1);
        std::memcpy(bytes.data(), text.c_str(), bytes.size());
    }
    template <class T>
    void setNumber(const std::string& name, T number) {
        auto& bytes = kernel.values[name];
        bytes.resize(sizeof number);
        std::memcpy(bytes.data(), &number, sizeof number);
    }

    FakeMacKernel kernel;
    const std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    const std::shared_ptr<MachineOfCalls> machine =
        std::make_shared<MachineOfCalls>(SimulatedMachine::laptop(clock));
};

TEST_F(MacKernelCalls, GiveTheReaderItsProcessors) {
    setText("machdep.cpu.brand_string", "Played Processor");
    setNumber("hw.logicalcpu", std::int32_t{2});
    setNumber("hw.physicalcpu", std::int32_t{2});
    kernel.total = {1000, 500, 8000, 100};
    kernel.perProcessor = {100, 50, 800, 10, 900, 450, 7200, 90};
    CPUReader reader(machine);
    EXPECT_EQ(reader.read(), nullptr);
    kernel.total = {1010, 505, 8080, 105};
    kernel.perProcessor = {100, 50, 900, 10, 930, 460, 7260, 90};
    const CPUStats* const stats = reader.read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->model, "Played Processor");
    EXPECT_DOUBLE_EQ(stats->userUsage, 0.15);
    EXPECT_DOUBLE_EQ(stats->systemUsage, 0.05);
    EXPECT_THAT(stats->perCoreUsage, ElementsAre(0.0, 0.4));
    EXPECT_EQ(kernel.portsHeld, 0);
    EXPECT_THAT(kernel.arraysHeld, IsEmpty()) << "every array goes back with its own size";
}

TEST_F(MacKernelCalls, LeaveNothingHeldWhenTheyFail) {
    CPUReader cpu(machine);
    MemoryReader memory(machine);
    kernel.fails = true;
    EXPECT_EQ(cpu.read(), nullptr);
    EXPECT_EQ(memory.read(), std::nullopt);
    EXPECT_EQ(kernel.portsHeld, 0);
    EXPECT_THAT(kernel.arraysHeld, IsEmpty());
    EXPECT_EQ(machine->processTable().timebase(), std::nullopt);
    EXPECT_LT(machine->processTable().listAllPIDs({}), 1);
}

TEST_F(MacKernelCalls, GiveTheReaderItsMemory) {
    using Layout = HostMemory::Layout;
    kernel.memoryRecord[Layout::active] = 1000;
    kernel.memoryRecord[Layout::wired] = 500;
    kernel.memoryRecord[Layout::compressor] = 200;
    kernel.memoryRecord[Layout::inactive] = 1000;
    kernel.memoryRecord[Layout::purgeable] = 24;
    setNumber("hw.memsize", std::uint64_t{1} << 30);
    MemoryReader reader(machine);
    const auto stats = reader.read();
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->activeBytes, 16'384'000u);
    EXPECT_EQ(stats->wiredBytes, 8'192'000u);
    EXPECT_EQ(stats->compressedBytes, 3'276'800u);
    EXPECT_EQ(stats->cachedBytes, 16'777'216u);
    EXPECT_EQ(stats->totalBytes, std::uint64_t{1} << 30);
    EXPECT_EQ(kernel.portsHeld, 0);
}

TEST_F(MacKernelCalls, FailForCountersWithoutRoom) {
    HostProcessors& host = machine->hostProcessors();
    const auto port = host.acquirePort();
    std::array<std::uint32_t, 3> tooFew{};
    EXPECT_EQ(host.totalTicks(port, tooFew), std::nullopt);
    host.releasePort(port);
}

TEST_F(MacKernelCalls, CountProcessesAndTheirRoomInBytes) {
    for (std::int32_t pid = 1; pid <= 100; ++pid)
        kernel.processes[pid];
    ProcessTable& table = machine->processTable();
    EXPECT_EQ(table.listAllPIDs({}), 120);
    std::vector<std::int32_t> pids(120);
    EXPECT_EQ(table.listAllPIDs(pids), 100);
    EXPECT_EQ(pids[99], 100);
    EXPECT_EQ(table.listAllPIDs(std::span(pids).first(30)), 30) << "no byte beyond the room";
}

TEST_F(MacKernelCalls, GiveTheReaderItsProcesses) {
    setNumber("hw.tbfrequency", std::uint64_t{24'000'000});
    kernel.processes[7] = {1000, 5, 4096, 24'000'000, 0, "/usr/sbin/worker", "worker"};
    kernel.processes[8] = {1000, 6, 8192, 0, 0, "", "kernel_name"};
    ProcessReader reader(machine);
    clock->wind(std::chrono::seconds(1));
    reader.read();
    clock->wind(std::chrono::seconds(1));
    kernel.processes[7].user += 6'000'000;
    kernel.processes[7].system += 6'000'000;
    const ProcessSample sample = reader.read();
    ASSERT_EQ(sample.all.size(), 2u);
    EXPECT_EQ(sample.all[0].name.string(), "worker");
    EXPECT_EQ(sample.all[0].command.string(), "/usr/sbin/worker");
    EXPECT_DOUBLE_EQ(sample.all[0].cpuPercent, 50);
    EXPECT_EQ(sample.all[0].residentMemoryBytes, 4096u);
    EXPECT_EQ(sample.all[1].name.string(), "kernel_name");
}

TEST_F(MacKernelCalls, SkipAProcessThatIsGone) {
    kernel.processes[7];
    ProcessTable::TaskAllInfo info;
    EXPECT_EQ(machine->processTable().taskAllInfo(7, info), ProcessTable::taskAllInfoSize);
    EXPECT_NE(machine->processTable().taskAllInfo(8, info), ProcessTable::taskAllInfoSize);
}

TEST_F(MacKernelCalls, OfferNoMoreRoomForAPathThanIsAllowed) {
    kernel.processes[7].path = "/bin/a";
    std::vector<char> large(10'000);
    EXPECT_EQ(machine->processTable().path(7, large), 6);
    EXPECT_EQ(kernel.maxBytesOfPath, 4096);
    EXPECT_TRUE(machine->processTable().mayHaveNewPath(7));
}

TEST_F(MacKernelCalls, TellTheTimebase) {
    const auto timebase = machine->processTable().timebase();
    ASSERT_TRUE(timebase);
    EXPECT_EQ(timebase->numerator, 125u);
    EXPECT_EQ(timebase->denominator, 3u);
}

TEST_F(MacKernelCalls, AnswerNamedValuesWithTheirSizeOrTheError) {
    setText("hw.model", "Mac14,2");
    KernelValues& values = machine->kernelValues();
    std::size_t size = 77;
    EXPECT_EQ(values.sysctlbyname("hw.model", {}, size), 0);
    EXPECT_EQ(size, 8u);
    std::array<std::byte, 4> small{};
    EXPECT_EQ(values.sysctlbyname("hw.model", small, size), ENOMEM);
    EXPECT_EQ(values.sysctlbyname("hw.cpufrequency", {}, size), ENOENT);
    EXPECT_EQ(Sysctl(values).string("hw.model"), "Mac14,2");
    EXPECT_EQ(Sysctl(values).int32("hw.model"), std::nullopt);
}

TEST(MacLoadAverages, AreAsManyAsThereIsRoomFor) {
    MacLoadAverages averages;
    std::array<double, 5> values{-1, -1, -1, -1, -1};
    EXPECT_EQ(averages.getloadavg(values), 3);
    EXPECT_GE(values[2], 0);
    EXPECT_EQ(values[3], -1);
    EXPECT_EQ(averages.getloadavg(std::span(values).first(1)), 1);
}

}  // namespace
}  // namespace vantor::kernel_calls_test

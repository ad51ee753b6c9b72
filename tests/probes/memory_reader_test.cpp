#include "probes/memory_reader.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/simulated/simulated_machine.h"

namespace vantor::memory_reader_test {
namespace {

constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;
constexpr std::uint32_t manyPages = std::numeric_limits<std::uint32_t>::max();

class MemoryReaderTest : public testing::Test {
  protected:
    /// Nothing of the kernel's may be left with the reader between two reads.
    std::optional<MemoryStats> read() {
        const auto stats = reader.read();
        EXPECT_EQ(host.portsOutstanding, 0);
        return stats;
    }

    void setPages(std::uint32_t pages) {
        host.active = host.wired = host.compressor = host.inactive = host.purgeable = pages;
    }

    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    SimulatedHostMemory& host = machine->hostMemory();
    MemoryReader reader{machine};
};

TEST_F(MemoryReaderTest, TurnsPagesIntoBytes) {
    host.active = 7;
    host.wired = 5;
    host.compressor = 3;
    host.inactive = 1000;
    host.purgeable = 24;
    const auto stats = read();
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->activeBytes, 7U * 16384);
    EXPECT_EQ(stats->wiredBytes, 5U * 16384);
    EXPECT_EQ(stats->compressedBytes, 3U * 16384);
    EXPECT_EQ(stats->cachedBytes, 16'777'216U);
    EXPECT_EQ(stats->usedBytes, 15U * 16384);
    EXPECT_EQ(stats->totalBytes, 16 * gibibyte);
    EXPECT_EQ(stats->availableBytes, 16 * gibibyte - 15 * 16384);
}

TEST_F(MemoryReaderTest, InactiveAndPurgeablePagesTogetherAreCached) {
    setPages(0);
    host.inactive = 1000;
    host.purgeable = 24;
    ASSERT_EQ(host.bytesPerPage, 16384U);
    EXPECT_EQ(read()->cachedBytes, 16'777'216U);
}

TEST_F(MemoryReaderTest, CountsCachedPagesAsAvailable) {
    const auto before = read();
    host.inactive += 1000;
    host.purgeable += 1000;
    const auto after = read();
    ASSERT_TRUE(before && after);
    EXPECT_EQ(after->availableBytes, before->availableBytes);
}

TEST_F(MemoryReaderTest, MoreInUseThanInstalledIsAllInUse) {
    host.active = host.pagesOf(10 * gibibyte);
    host.wired = host.pagesOf(4 * gibibyte);
    host.compressor = host.pagesOf(3 * gibibyte);
    const auto stats = read();
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->usedBytes, 16 * gibibyte);
    EXPECT_EQ(stats->availableBytes, 0U);
    EXPECT_EQ(stats->activeBytes, 10 * gibibyte) << "the parts stay as they are";
    EXPECT_EQ(stats->compressedBytes, 3 * gibibyte);
}

TEST_F(MemoryReaderTest, ProductsThatOverflowGiveNothing) {
    for (std::uint32_t SimulatedHostMemory::*const count :
         {&SimulatedHostMemory::active, &SimulatedHostMemory::wired,
          &SimulatedHostMemory::compressor, &SimulatedHostMemory::inactive,
          &SimulatedHostMemory::purgeable}) {
        setPages(0);
        host.bytesPerPage = std::uint64_t{1} << 62;
        host.*count = 3;
        EXPECT_TRUE(read()) << "three quarters of all that 64 bits can count";
        host.*count = 4;
        EXPECT_FALSE(read());
    }
}

TEST_F(MemoryReaderTest, SumOfProductsThatOverflowsGivesNothing) {
    setPages(0);
    host.bytesPerPage = std::uint64_t{1} << 62;
    host.active = 2;
    host.wired = 1;
    EXPECT_TRUE(read());
    host.compressor = 1;
    EXPECT_FALSE(read());
    host.compressor = 0;
    host.wired = 2;
    EXPECT_FALSE(read());
}

TEST_F(MemoryReaderTest, CachedPagesAreAddedWithoutAWrap) {
    setPages(0);
    host.inactive = host.purgeable = manyPages;
    host.bytesPerPage = 4096;
    const auto stats = read();
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->cachedBytes, std::uint64_t{manyPages} * 2 * 4096);
}

TEST_F(MemoryReaderTest, OffersARoomyBufferOfZeroes) {
    struct Greedy : SimulatedHostMemory {
        std::optional<std::size_t> vmStatistics(Port port,
                                                std::span<std::uint32_t> words) override {
            for (const std::uint32_t word : words)
                sum += word;
            return SimulatedHostMemory::vmStatistics(port, words);
        }
        std::uint64_t sum = 0;
    };
    struct GreedyMachine : SimulatedMachine {
        GreedyMachine() { calls().hostMemory = memory; }
        Greedy memory;
    };
    const auto greedy = std::make_shared<GreedyMachine>();
    MemoryReader greedyReader(greedy);
    greedy->memory.active = 5;
    EXPECT_TRUE(greedyReader.read());
    EXPECT_TRUE(greedyReader.read());
    EXPECT_EQ(greedy->memory.wordsOffered, 62U);
    EXPECT_EQ(greedy->memory.sum, 0U);
}

TEST_F(MemoryReaderTest, FailureOfTheStatisticsGivesNothing) {
    host.statisticsFail = true;
    EXPECT_FALSE(read());
    host.statisticsFail = false;
    EXPECT_TRUE(read());
}

TEST_F(MemoryReaderTest, StatisticsOfNoWordsAreAFailure) {
    host.wordCount = 0;
    EXPECT_FALSE(read());
    host.wordCount = 1;
    EXPECT_TRUE(read());
}

TEST_F(MemoryReaderTest, FailureOfThePageSizeGivesNothing) {
    host.pageSizeFails = true;
    EXPECT_FALSE(read());
    host.pageSizeFails = false;
    EXPECT_TRUE(read());
}

TEST_F(MemoryReaderTest, AsksOnceHowMuchIsInstalled) {
    ASSERT_TRUE(read());
    machine->kernelValues().setUInt64("hw.memsize", gibibyte);
    EXPECT_EQ(read()->totalBytes, 16 * gibibyte);
    EXPECT_EQ(machine->kernelValues().valueReads("hw.memsize"), 1);
}

TEST_F(MemoryReaderTest, FailedReadDoesNotAskHowMuchIsInstalled) {
    host.statisticsFail = true;
    EXPECT_FALSE(read());
    EXPECT_EQ(machine->kernelValues().valueReads("hw.memsize"), 0);
}

TEST_F(MemoryReaderTest, TakesTheSystemsFigureWhereTheKernelHasNone) {
    machine->kernelValues().remove("hw.memsize");
    machine->processInfo().memory = 8 * gibibyte;
    EXPECT_EQ(read()->totalBytes, 8 * gibibyte);
    machine->processInfo().memory = gibibyte;
    EXPECT_EQ(read()->totalBytes, 8 * gibibyte);
}

TEST(MemoryReader, GivesNothingOnAMachineWhereEveryCallFails) {
    const auto machine = SimulatedMachine::broken();
    MemoryReader reader(machine);
    EXPECT_FALSE(reader.read());
    EXPECT_EQ(machine->hostMemory().portsOutstanding, 0);
}

}  // namespace
}  // namespace vantor::memory_reader_test

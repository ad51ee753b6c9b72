#include "platform/linux/memory/linux_host_memory.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/linux/linux_machine.h"
#include "probes/memory_reader.h"
#include "support/fake_kernel_tree.h"

namespace vantor::linux_host_memory_test {
namespace {

using Layout = HostMemory::Layout;

class LinuxHostMemoryTest : public testing::Test {
  protected:
    void say(const std::string& memInfo) { tree.proc("meminfo", memInfo); }

    /// The record of one port, all words set before it is asked for; empty when it fails.
    std::vector<std::uint32_t> record() {
        std::vector<std::uint32_t> words(62, 0xFFFF);
        const auto port = host.acquirePort();
        const auto count = host.vmStatistics(port, words);
        page = host.pageSize(port);
        host.releasePort(port);
        words.resize(count.value_or(0));
        return words;
    }

    std::uint64_t usedBytes() {
        const auto words = record();
        if (words.empty() || !page) return 0;
        return (std::uint64_t{words[Layout::active]} + words[Layout::wired] +
                words[Layout::compressor]) *
               *page;
    }

    FakeKernelTree tree;
    LinuxHostMemory host{tree.roots()};
    std::optional<std::uint64_t> page;
};

constexpr auto small =
    "MemTotal: 1000 kB\nMemFree: 100 kB\nMemAvailable: 400 kB\nMlocked: 20 kB\nSwapTotal: 7 kB\n"
    "Zswap: 5 kB\nSUnreclaim: 10 kB\n";

TEST_F(LinuxHostMemoryTest, AnswersInPagesOfOneKilobyte) {
    say(small);
    const auto words = record();
    ASSERT_EQ(words.size(), 33U);
    EXPECT_EQ(page, 1024U);
    EXPECT_EQ(words[Layout::active], 565U);
    EXPECT_EQ(words[Layout::wired], 30U);
    EXPECT_EQ(words[Layout::compressor], 5U);
    EXPECT_EQ(words[Layout::inactive], 300U);
    EXPECT_EQ(words[Layout::purgeable], 0U);
    EXPECT_EQ(words[0], 0U) << "what is not answered is zero";
    EXPECT_EQ(words[10], 0U);
}

TEST_F(LinuxHostMemoryTest, CountsZramIntoTheCompressor) {
    tree.sys("block/zram0/mm_stat", "1 1 40960 0\n");
    say(small);
    const auto words = record();
    ASSERT_FALSE(words.empty());
    EXPECT_EQ(words[Layout::compressor], 45U);
    EXPECT_EQ(usedBytes(), 600U * 1024);
}

TEST_F(LinuxHostMemoryTest, CountsTheCacheOfZFSAsAvailable) {
    tree.proc("spl/kstat/zfs/arcstats", "c_min 4 10240\nsize 4 61440\n");
    say(small);
    EXPECT_EQ(usedBytes(), 550U * 1024);
    tree.proc("spl/kstat/zfs/arcstats", "c_min 4 10240\nsize 4 112640\n");
    EXPECT_EQ(usedBytes(), 500U * 1024);
    EXPECT_EQ(record()[Layout::purgeable], 100U);
    tree.proc("spl/kstat/zfs/arcstats", "damaged\n");
    EXPECT_EQ(usedBytes(), 600U * 1024);
}

TEST_F(LinuxHostMemoryTest, FindsACacheOfZFSThatComesLater) {
    say(small);
    EXPECT_EQ(usedBytes(), 600U * 1024);
    tree.proc("spl/kstat/zfs/arcstats", "c_min 4 0\nsize 4 51200\n");
    int readings = 1;
    while (usedBytes() != 550U * 1024 && readings < 1000)
        ++readings;
    EXPECT_GT(readings, 10) << "most machines have none: it is not sought at each reading";
    EXPECT_LE(readings, 61);
}

TEST_F(LinuxHostMemoryTest, EstimatesOnKernelsThatDoNotSayWhatIsAvailable) {
    tree.proc("sys/vm/min_free_kbytes", "8\n");
    say("MemTotal: 1000 kB\nMemFree: 100 kB\nActive(file): 100 kB\nInactive(file): 60 kB\n"
        "SReclaimable: 15 kB\n");
    EXPECT_EQ(usedBytes(), (1000U - (100 - 10 + 160 - 10 + 15 - 7)) * 1024);
    tree.proc("sys/vm/min_free_kbytes", "none\n");
    EXPECT_EQ(usedBytes(), (1000U - (100 + 160 + 15)) * 1024);
}

TEST_F(LinuxHostMemoryTest, DoublesThePageUntilTheCountsFit) {
    struct Row {
        const char* total;
        std::uint64_t page;
    };
    for (const auto& [total, expected] :
         {Row{"4294967295", 1024}, Row{"4294967296", 2048}, Row{"8589934591", 2048},
          Row{"8589934592", 4096}, Row{"18014398509481983", std::uint64_t{1024} << 22}}) {
        say(std::string("MemTotal: ") + total + " kB\nMemFree: 3 kB\nMemAvailable: 3 kB\n" +
            "SUnreclaim: 4095 kB\nZswap: 4095 kB\n");
        const std::uint64_t used = (std::stoull(total) - 3) * 1024;
        const std::uint64_t answered = usedBytes();
        EXPECT_EQ(page, expected) << total;
        EXPECT_LE(answered, used) << total;
        EXPECT_LT(used - answered, expected) << total << ": less than a page is lost";
    }
}

TEST_F(LinuxHostMemoryTest, ReadsOncePerPort) {
    say(small);
    std::array<std::uint32_t, 62> words{};
    const auto port = host.acquirePort();
    EXPECT_EQ(host.pageSize(port), 1024U);
    say("MemTotal: 8589934592 kB\nMemFree: 1 kB\nMemAvailable: 1 kB\n");
    ASSERT_TRUE(host.vmStatistics(port, words));
    EXPECT_EQ(words[Layout::wired], 30U);
    host.releasePort(port);
    EXPECT_FALSE(record().empty());
    EXPECT_EQ(page, 4096U);
}

TEST_F(LinuxHostMemoryTest, FailsWithoutTheFileUntilItAppears) {
    EXPECT_TRUE(record().empty());
    EXPECT_EQ(page, std::nullopt);
    say(small);
    EXPECT_FALSE(record().empty());
    EXPECT_NE(page, std::nullopt);
}

TEST_F(LinuxHostMemoryTest, FailsOnADamagedFile) {
    say(small);
    ASSERT_FALSE(record().empty());
    for (const char* text : {"", "MemFree: 100 kB\n", "MemTotal: 1000 kB\n", "MemTotal: 10"}) {
        say(text);
        EXPECT_TRUE(record().empty()) << text;
        EXPECT_EQ(page, std::nullopt) << text;
    }
}

TEST_F(LinuxHostMemoryTest, FailsWhereTheRecordFindsNoRoom) {
    say(small);
    std::array<std::uint32_t, 33> words{};
    const auto port = host.acquirePort();
    EXPECT_EQ(host.vmStatistics(port, std::span(words).first(32)), std::nullopt);
    EXPECT_EQ(host.vmStatistics(port, words), 33U);
    host.releasePort(port);
}

TEST_F(LinuxHostMemoryTest, IsWhatTheReaderReads) {
    say(small);
    MemoryReader reader(std::make_shared<LinuxMachine>(tree.roots()));
    const auto stats = reader.read();
    ASSERT_TRUE(stats);
    EXPECT_EQ(stats->totalBytes, 1'024'000U);
    EXPECT_EQ(stats->usedBytes, 614'400U);
    EXPECT_EQ(stats->availableBytes, 409'600U);
    EXPECT_EQ(stats->wiredBytes, 30'720U);
    EXPECT_EQ(stats->compressedBytes, 5'120U);
    EXPECT_EQ(stats->cachedBytes, 307'200U);
    say("");
    EXPECT_FALSE(reader.read());
}

}  // namespace
}  // namespace vantor::linux_host_memory_test

#include "ui/explorer/process_explorer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/cpu_samples.h"
#include "ui/explorer/process_search.h"
#include "ui/rendering.h"

/// Which processes the explorer lists.
namespace vantor::process_explorer_test {
namespace {

using testing::ElementsAre;

ProcessStats withMemory(std::int32_t pid, std::string name, double cpu, std::uint64_t memory) {
    ProcessStats stats = process(pid, std::move(name), cpu);
    stats.residentMemoryBytes = memory;
    return stats;
}

class ProcessExplorerTest : public testing::Test {
  protected:
    DashboardState state;

    ProcessExplorerTest() {
        add({withMemory(12, "Safari", 5, 700), withMemory(120, "kernel", 9, 50),
             withMemory(7, "Finder", 5, 900), withMemory(3, "Résumé", 1, 10)});
    }
    void add(std::vector<ProcessStats> processes) {
        for (ProcessStats& each : processes)
            state.snapshot.processes.push_back(std::move(each));
        sort();
    }
    /// As the readings are handed over: the first 18 by each.
    void sort() {
        state.processesByCPU = state.processesByMemory = state.snapshot.processes;
        std::ranges::sort(state.processesByCPU, [](const auto& a, const auto& b) {
            return a.cpuPercent > b.cpuPercent || (a.cpuPercent == b.cpuPercent && a.pid < b.pid);
        });
        std::ranges::sort(state.processesByMemory, [](const auto& a, const auto& b) {
            return a.residentMemoryBytes > b.residentMemoryBytes;
        });
        for (auto* list : {&state.processesByCPU, &state.processesByMemory})
            if (list->size() > 18) list->resize(18);
    }
    std::vector<std::int32_t> visible(const char16_t* query, SortMode mode = SortMode::cpu,
                                      const QLocale& locale = QLocale::c()) {
        std::vector<std::int32_t> pids;
        for (const ProcessStats* each : ProcessExplorer::of(state).makeVisibleProcesses(
                 QString::fromUtf16(query), mode, locale))
            pids.push_back(each->pid);
        return pids;
    }
};

TEST_F(ProcessExplorerTest, WithoutAQueryTheOrderIsThatOfTheSort) {
    EXPECT_THAT(visible(u""), ElementsAre(120, 7, 12, 3));
    EXPECT_THAT(visible(u"", SortMode::memory), ElementsAre(7, 12, 120, 3));
}

TEST_F(ProcessExplorerTest, OfFortyProcessesExactlyEighteenAreShownInTheOrderOfTheSort) {
    for (int i = 0; i < 36; ++i)
        add({withMemory(1000 + i, "worker", 100 + i, static_cast<std::uint64_t>(5000 - i))});
    ASSERT_EQ(state.snapshot.processes.size(), 40u);
    const auto byCPU = visible(u"");
    ASSERT_EQ(byCPU.size(), 18u);
    EXPECT_EQ(byCPU.front(), 1035);
    EXPECT_EQ(byCPU.back(), 1018);
    const auto byMemory = visible(u"", SortMode::memory);
    ASSERT_EQ(byMemory.size(), 18u);
    EXPECT_EQ(byMemory.front(), 1000);
    EXPECT_EQ(visible(u"work").size(), 18u);
}

TEST_F(ProcessExplorerTest, TypingSafShowsOnlyWhoseNameOrCommandContainsItInAnyCase) {
    add({withMemory(50, "helper", 1, 1), withMemory(51, "other", 1, 1)});
    state.snapshot.processes[4].command = "/Applications/SAFARI.app/helper";
    EXPECT_THAT(visible(u"saf"), ElementsAre(12, 50));
    EXPECT_THAT(visible(u"SAF"), ElementsAre(12, 50));
    EXPECT_THAT(visible(u"safe"), ElementsAre());
}

TEST_F(ProcessExplorerTest, TypingTwelveMatchesEveryIdentifierThatContainsIt) {
    add({withMemory(5123, "x", 0.5, 1), withMemory(4, "model12", 0.25, 1)});
    EXPECT_THAT(visible(u"12"), ElementsAre(120, 12, 5123, 4));
}

TEST_F(ProcessExplorerTest, TheFilterFindsProcessesThatAreNotAmongTheFirst) {
    for (int i = 0; i < 30; ++i)
        add({withMemory(1000 + i, "worker", 100 + i, static_cast<std::uint64_t>(5000 + i))});
    EXPECT_THAT(visible(u"Finder"), ElementsAre(7));
    EXPECT_THAT(visible(u"e", SortMode::memory).front(), 1029);
}

TEST_F(ProcessExplorerTest, AccentsDoNotMatter) {
    EXPECT_THAT(visible(u"resume"), ElementsAre(3));
    EXPECT_THAT(visible(u"RÉSUMÉ"), ElementsAre(3));
    EXPECT_THAT(visible(u"résu"), ElementsAre(3));
    EXPECT_THAT(visible(u"ŝafari"), ElementsAre(12)) << "in what is typed neither";
    EXPECT_THAT(visible(u"\u0301"), ElementsAre()) << "an accent alone is not in every name";
}

TEST_F(ProcessExplorerTest, CaseIsThatOfTheUsersLanguage) {
    add({withMemory(60, "INDEX", 50, 1), withMemory(61, "Işık", 40, 1)});
    EXPECT_THAT(visible(u"index"), ElementsAre(60));
    const QLocale turkish(QLocale::Turkish);
    EXPECT_THAT(visible(u"index", SortMode::cpu, turkish), ElementsAre());
    EXPECT_THAT(visible(u"ındex", SortMode::cpu, turkish), ElementsAre(60));
    EXPECT_THAT(visible(u"ışık", SortMode::cpu, turkish), ElementsAre(61));
}

TEST_F(ProcessExplorerTest, HostileNamesAreSearchedToo) {
    add({withMemory(70, ") R 1 (", 50, 1), withMemory(71, "a\nb", 40, 1),
         withMemory(72, std::string(4000, 'x').append("END"), 30, 1),
         withMemory(73, "ファイル", 20, 1)});
    EXPECT_THAT(visible(u") r"), ElementsAre(70));
    EXPECT_THAT(visible(u"A\nB"), ElementsAre(71));
    EXPECT_THAT(visible(u"xend"), ElementsAre(72));
    EXPECT_THAT(visible(u"ファ"), ElementsAre(73));
}

TEST_F(ProcessExplorerTest, BarsAreMeasuredByTheLargestVisible) {
    const ProcessStats busy = withMemory(1, "busy", 50, 3000);
    const ProcessRow row{busy, 200, 4000};
    EXPECT_DOUBLE_EQ(row.cpuShare(), 0.25);
    EXPECT_DOUBLE_EQ(row.memoryShare(), 0.75);
    EXPECT_EQ(utf8(row.cpuText()), "50.0%");
    EXPECT_EQ(utf8(row.memoryText()), "3 KB");
    const ProcessRow idle{busy, 0, 0};
    EXPECT_EQ(idle.cpuShare(), 0);
    EXPECT_EQ(idle.memoryShare(), 0);
}

TEST(SortModes, AreTwoWithTheirLabels) {
    ASSERT_EQ(allSortModes.size(), 2u);
    EXPECT_EQ(utf8(sortModeLabel(allSortModes[0])), "CPU");
    EXPECT_EQ(utf8(sortModeLabel(allSortModes[1])), "Memory");
}

}  // namespace
}  // namespace vantor::process_explorer_test

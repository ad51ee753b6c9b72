#include "platform/linux/system/kernel_facts.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <ostream>
#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::kernel_facts_test {
namespace {

struct Row {
    const char* name;
    const char* release;
    std::optional<std::array<int, 3>> version;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class KernelRelease : public testing::TestWithParam<Row> {};

using Numbers = std::array<int, 3>;

INSTANTIATE_TEST_SUITE_P(
    Rows, KernelRelease,
    testing::Values(Row{"Distribution", "6.1.0-28-amd64", Numbers{6, 1, 0}},
                    Row{"Candidate", "6.19-rc3", Numbers{6, 19, 0}},
                    Row{"CandidateWithAPatch", "6.19.0-rc3+", Numbers{6, 19, 0}},
                    Row{"Four", "2.6.32.27", Numbers{2, 6, 32}}, Row{"One", "7", Numbers{7, 0, 0}},
                    Row{"Words", "5.15.vendor", Numbers{5, 15, 0}},
                    Row{"NoDotBehind", "5.15plus", Numbers{5, 15, 0}},
                    Row{"TooLarge", "5.99999999999.3", Numbers{5, 0, 0}},
                    Row{"Negative", "5.-3.2", Numbers{5, 0, 0}}, Row{"Empty", "", std::nullopt},
                    Row{"Word", "generic", std::nullopt},
                    Row{"NegativeFront", "-5.1", std::nullopt}, Row{"Dot", ".5", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(KernelRelease, HasThreeNumbersAtItsFront) {
    const auto version = parseKernelRelease(GetParam().release);
    ASSERT_EQ(version.has_value(), GetParam().version.has_value());
    if (version) {
        EXPECT_EQ((Numbers{version->major, version->minor, version->patch}), GetParam().version);
    }
}

TEST(KernelFacts, AreReadFromTheirFiles) {
    const FakeKernelTree tree;
    tree.proc("meminfo", "MemTotal: 1000 kB\n");
    tree.proc("sys/kernel/osrelease", "6.1.0-28-amd64\n");
    tree.proc("sys/kernel/pid_max", "4194304\n");
    EXPECT_EQ(readInstalledMemory(tree.roots()), 1'024'000U);
    EXPECT_EQ(readKernelRelease(tree.roots()), "6.1.0-28-amd64");
    EXPECT_EQ(readProcessLimit(tree.roots()), 4194304);
}

TEST(KernelFacts, AreAbsentWhereTheFilesAreMissingOrDamaged) {
    const FakeKernelTree tree;
    EXPECT_EQ(readInstalledMemory(tree.roots()), std::nullopt);
    EXPECT_EQ(readKernelRelease(tree.roots()), std::nullopt);
    EXPECT_EQ(readProcessLimit(tree.roots()), std::nullopt);
    tree.proc("meminfo", "MemTotal: 10");
    tree.proc("sys/kernel/osrelease", "\n");
    EXPECT_EQ(readInstalledMemory(tree.roots()), std::nullopt);
    EXPECT_EQ(readKernelRelease(tree.roots()), std::nullopt);
    for (const char* text : {"", "many\n", "0\n", "-1\n", "4294967296\n", "12 13\n"}) {
        tree.proc("sys/kernel/pid_max", text);
        EXPECT_EQ(readProcessLimit(tree.roots()), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace vantor::kernel_facts_test

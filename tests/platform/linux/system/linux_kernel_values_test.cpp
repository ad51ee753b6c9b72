#include "platform/linux/system/linux_kernel_values.h"

#include <gtest/gtest.h>
#include <sys/utsname.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <ostream>
#include <string>

#include "platform/sysctl.h"
#include "support/fake_kernel_tree.h"

namespace vantor::linux_kernel_values_test {
namespace {

class LinuxKernelValuesTest : public testing::Test {
  protected:
    LinuxKernelValuesTest() {
        tree.proc("cpuinfo", "processor\t: 0\nmodel name\t: Processor 9 @ 2.60GHz\n");
        tree.sys("class/dmi/id/product_name", "Server 7\n");
        tree.sys("devices/system/cpu/online", "0-3\n");
        tree.proc("meminfo", "MemTotal: 1000 kB\n");
        tree.proc("sys/kernel/osrelease", "6.1.0-28-amd64\n");
        tree.proc("sys/kernel/pid_max", "4194304\n");
        for (unsigned id = 0; id < 4; ++id)
            tree.core(id, "0", "", std::to_string(id / 2));
    }

    FakeKernelTree tree;
    LinuxKernelValues values{tree.roots()};
    Sysctl sysctl{values};
};

TEST_F(LinuxKernelValuesTest, AnswersWhatHasACounterpart) {
    EXPECT_EQ(sysctl.string("machdep.cpu.brand_string"), "Processor 9 @ 2.60GHz");
    EXPECT_EQ(sysctl.string("hw.model"), "Server 7");
    EXPECT_EQ(sysctl.int32("hw.logicalcpu"), 4);
    EXPECT_EQ(sysctl.int32("hw.physicalcpu"), 2);
    EXPECT_EQ(sysctl.uint64("hw.cpufrequency"), 2'600'000'000U);
    EXPECT_EQ(sysctl.uint64("hw.memsize"), 1'024'000U);
    EXPECT_EQ(sysctl.uint64("hw.tbfrequency"), 1'000'000'000U);
    EXPECT_EQ(sysctl.int32("kern.maxproc"), 4194304);
    EXPECT_EQ(sysctl.string("kern.osversion"), "6.1.0-28-amd64");
}

TEST_F(LinuxKernelValuesTest, KnowsNoOtherName) {
    std::size_t size = 17;
    EXPECT_EQ(values.sysctlbyname("hw.nosuch", {}, size), ENOENT);
    EXPECT_EQ(values.sysctlbyname("", {}, size), ENOENT);
    EXPECT_EQ(values.sysctlbyname("hw", {}, size), ENOENT);
}

TEST_F(LinuxKernelValuesTest, CountsTheFinalZeroIntoATextsSize) {
    std::size_t size = 0;
    ASSERT_EQ(values.sysctlbyname("hw.model", {}, size), 0);
    EXPECT_EQ(size, 9U);
    std::array<std::byte, 9> bytes;
    bytes.fill(std::byte{0x55});
    ASSERT_EQ(values.sysctlbyname("hw.model", bytes, size), 0);
    EXPECT_EQ(std::memcmp(bytes.data(), "Server 7", 9), 0);
}

TEST_F(LinuxKernelValuesTest, SaysSoWhenABufferIsTooSmall) {
    std::array<std::byte, 8> bytes;
    bytes.fill(std::byte{0x55});
    std::size_t size = bytes.size();
    EXPECT_EQ(values.sysctlbyname("hw.model", bytes, size), ENOMEM);
    EXPECT_EQ(bytes.front(), std::byte{0x55});
    EXPECT_EQ(sysctl.int32("hw.cpufrequency"), std::nullopt);
}

TEST_F(LinuxKernelValuesTest, FillsNoMoreOfABufferThanTheValue) {
    std::array<std::byte, 12> bytes;
    bytes.fill(std::byte{0x55});
    std::size_t size = bytes.size();
    ASSERT_EQ(values.sysctlbyname("hw.model", bytes, size), 0);
    EXPECT_EQ(size, 9U);
    EXPECT_EQ(bytes[9], std::byte{0x55});
    EXPECT_EQ(sysctl.uint64("hw.logicalcpu"), std::nullopt);
}

TEST(LinuxKernelValues, KnowNothingOfAMachineWithoutFiles) {
    const FakeKernelTree tree;
    LinuxKernelValues values(tree.roots());
    std::size_t size = 0;
    for (const char* name : {"machdep.cpu.brand_string", "hw.model", "hw.logicalcpu",
                             "hw.physicalcpu", "hw.cpufrequency", "hw.memsize", "kern.maxproc"}) {
        EXPECT_EQ(values.sysctlbyname(name, {}, size), ENOENT) << name;
    }
}

TEST(LinuxKernelValues, NameTheRunningKernelWhereItsFileMayNotBeRead) {
    utsname running{};
    ASSERT_EQ(::uname(&running), 0);
    const FakeKernelTree tree;
    LinuxKernelValues values(tree.roots());
    EXPECT_EQ(Sysctl(values).string("kern.osversion"), running.release);
    tree.proc("sys/kernel/osrelease", "\n");
    EXPECT_EQ(Sysctl(values).string("kern.osversion"), running.release);
}

}  // namespace
}  // namespace vantor::linux_kernel_values_test

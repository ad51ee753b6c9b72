#include "platform/linux/processes/process_clocks.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <limits>

namespace vantor::process_clocks_test {
namespace {

TEST(LiveProcessClocks, TellTheTimeOfTheProgramItself) {
    const auto clocks = makeLiveProcessClocks();
    const auto own = clocks->read(0);
    ASSERT_TRUE(own);
    EXPECT_GE(clocks->read(::getpid()), own);
}

/// Such a number was taken for the one that its lower bits are, or for a clock of another kind.
TEST(LiveProcessClocks, KnowNoProcessWithANumberThatNoneCanHave) {
    const auto clocks = makeLiveProcessClocks();
    constexpr std::int32_t lostBit = std::int32_t{1} << 29;
    EXPECT_FALSE(clocks->read(::getpid() + lostBit));
    EXPECT_FALSE(clocks->read(std::numeric_limits<std::int32_t>::max()));
    for (const std::int32_t pid : {-1, -2, -::getpid(), std::numeric_limits<std::int32_t>::min()})
        EXPECT_FALSE(clocks->read(pid)) << pid;
}

}  // namespace
}  // namespace vantor::process_clocks_test

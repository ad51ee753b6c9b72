#include "platform/linux/processes/process_arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace vantor::process_arguments_test {
namespace {

using namespace std::string_view_literals;
using testing::Optional;

TEST(FirstArgument, EndsAtItsZeroByte) {
    EXPECT_THAT(firstArgument("/usr/bin/tool\0--fast\0"sv), Optional("/usr/bin/tool"sv));
    EXPECT_THAT(firstArgument("tool\0"sv), Optional("tool"sv));
}

TEST(FirstArgument, OfAKernelThreadIsNone) {
    EXPECT_EQ(firstArgument(""), std::nullopt);
    EXPECT_EQ(firstArgument("\0\0"sv), std::nullopt);
}

TEST(FirstArgument, WithoutItsEndIsNone) {
    EXPECT_EQ(firstArgument("/usr/bin/tool"), std::nullopt);
    EXPECT_EQ(firstArgument(std::string(4096, 'a')), std::nullopt);
}

TEST(FirstArgument, WithControlCharactersIsNone) {
    for (const char control : {'\n', '\t', '\x1b', '\x7f', '\x01'}) {
        const std::string text = std::string("/usr/bin/to") + control + "ol" + '\0';
        EXPECT_EQ(firstArgument(text), std::nullopt) << static_cast<int>(control);
    }
    EXPECT_THAT(firstArgument("caf\xC3\xA9\0"sv), Optional("caf\xC3\xA9"sv));
}

TEST(WholeName, IsTheLastComponentOfTheSameName) {
    EXPECT_THAT(wholeName("/usr/bin/tool", "tool"), Optional("tool"sv));
    EXPECT_THAT(wholeName("tool", "tool"), Optional("tool"sv));
    EXPECT_THAT(wholeName("./tool", "tool"), Optional("tool"sv));
}

TEST(WholeName, GoesOnWhereTheKernelsIsCut) {
    EXPECT_THAT(wholeName("/opt/123456789012345678", "123456789012345"),
                Optional("123456789012345678"sv));
    EXPECT_THAT(wholeName("/opt/123456789012345", "123456789012345"),
                Optional("123456789012345"sv));
}

TEST(WholeName, DoesNotGoOnWhereTheKernelsIsWhole) {
    EXPECT_EQ(wholeName("/opt/12345678901234x", "12345678901234"), std::nullopt);
    EXPECT_EQ(wholeName("daemon: /usr/sbin/daemon -D [listener]", "daemon"), std::nullopt);
}

TEST(WholeName, IsNoReportOfWhatADaemonDoes) {
    EXPECT_EQ(wholeName("/usr/bin/a-daemon-with-a-name: busy", "a-daemon-with-a"), std::nullopt);
    EXPECT_THAT(wholeName("/opt/My Long Program", "My Long Program"), Optional("My Long Program"sv))
        << "blanks that the kernel has too";
}

TEST(WholeName, IsNotWhatAnotherProgramIsCalled) {
    EXPECT_EQ(wholeName("/bin/bash", "script.sh"), std::nullopt);
    EXPECT_EQ(wholeName("/tool/bash", "tool"), std::nullopt);
    EXPECT_EQ(wholeName("/usr/bin/tool/", "tool"), std::nullopt);
    EXPECT_EQ(wholeName("/usr/bin/tool", ""), std::nullopt);
    EXPECT_EQ(wholeName("-bash", "bash"), std::nullopt);
}

}  // namespace
}  // namespace vantor::process_arguments_test

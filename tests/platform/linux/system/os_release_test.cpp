#include "platform/linux/system/os_release.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::os_release_test {
namespace {

struct Row {
    const char* name;
    const char* text;
    std::optional<std::string> value;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class OSReleaseValue : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, OSReleaseValue,
    testing::Values(
        Row{"Bare", "NAME=Fedora\n", "Fedora"}, Row{"DoubleQuotes", "NAME=\"A B\"\n", "A B"},
        Row{"SingleQuotes", "NAME='A B'\n", "A B"}, Row{"NoLineEnd", "NAME=Arch", "Arch"},
        Row{"CarriageReturn", "NAME=\"A B\"\r\n", "A B"},
        Row{"BlanksAround", "  NAME=\"A B\" \t\n", "A B"},
        Row{"BlanksInside", "NAME=\"  A B \"\n", "A B"},
        Row{"EscapedQuote", R"(NAME="A \"B\" C")", "A \"B\" C"},
        Row{"EscapedDollar", R"(NAME="A \$B \` \\")", "A $B ` \\"},
        Row{"BackslashBeforeAnother", R"(NAME="A\nB")", "A\\nB"},
        Row{"SingleQuotesKeepBackslashes", R"(NAME='A\"B')", "A\\\"B"},
        Row{"BareEscape", R"(NAME=A\ B)", "A B"}, Row{"Letters", "NAME=Ünix\n", "Ünix"},
        Row{"LastOneCounts", "NAME=A\nNAME=B\n", "B"},
        Row{"LastOneCountsWhenDamaged", "NAME=A\nNAME=\"B\n", std::nullopt},
        Row{"AmongOthers", "ID=a\n# NAME=c\n\nNAME=b\nNAMES=d\n", "b"},
        Row{"EqualsInside", "NAME=\"a=b\"\n", "a=b"}, Row{"Missing", "ID=a\n", std::nullopt},
        Row{"NoText", "", std::nullopt}, Row{"Empty", "NAME=\n", std::nullopt},
        Row{"EmptyQuotes", "NAME=\"\"\n", std::nullopt},
        Row{"BlankQuotes", "NAME=\"  \"\n", std::nullopt},
        Row{"Unclosed", "NAME=\"A B\n", std::nullopt},
        Row{"ClosedByAnEscapedQuote", "NAME=\"A B\\\"\n", std::nullopt},
        Row{"QuoteAlone", "NAME=\"\n", std::nullopt},
        Row{"MoreBehindTheQuote", "NAME=\"A\" B\n", std::nullopt},
        Row{"TwoQuotedParts", "NAME=\"A\"\"B\"\n", std::nullopt},
        Row{"TwoBareWords", "NAME=A B\n", std::nullopt},
        Row{"QuoteInABareWord", "NAME=A\"B\"\n", std::nullopt},
        Row{"BackslashAtTheEnd", "NAME=A\\\n", std::nullopt},
        Row{"ControlLetter", "NAME=\"A\x1B[31mB\"\n", std::nullopt},
        Row{"BlankBeforeEquals", "NAME =A\n", std::nullopt},
        Row{"OtherCase", "name=A\n", std::nullopt}, Row{"NoEquals", "NAME\n", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(OSReleaseValue, IsReadAsAShellWould) {
    EXPECT_EQ(findInOSRelease(GetParam().text, "NAME"), GetParam().value);
}

TEST(OSRelease, NamesTheSystem) {
    EXPECT_EQ(operatingSystemNameIn("NAME=\"Debian GNU/Linux\"\nVERSION=\"12 (bookworm)\"\n"
                                    "PRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\n"),
              "Debian GNU/Linux 12 (bookworm)");
    EXPECT_EQ(operatingSystemNameIn("NAME=\"Some OS\"\nVERSION='12 (word)'\nPRETTY_NAME=\"\"\n"),
              "Some OS 12 (word)");
    EXPECT_EQ(operatingSystemNameIn("NAME=Rolling\n"), "Rolling");
    EXPECT_EQ(operatingSystemNameIn("VERSION=3\n"), "Linux");
    EXPECT_EQ(operatingSystemNameIn(""), "Linux");
}

TEST(OSRelease, AZeroByteIsNoPartOfAName) {
    EXPECT_EQ(findInOSRelease(std::string_view("NAME=\"A\0B\"\n", 11), "NAME"), std::nullopt);
}

}  // namespace
}  // namespace vantor::os_release_test

#include "platform/linux/storage/mount_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/named_row.h"

namespace vantor::mount_table_test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

std::vector<Mount> parse(std::string_view text) {
    std::vector<Mount> mounts;
    parseMountTable(text, mounts);
    return mounts;
}

TEST(MountTable, GivesTheFieldsOfALine) {
    const auto mounts =
        parse("36 35 98:7 /mnt1 /mnt2 rw,noatime master:1 - ext3 /dev/root rw,errors=continue\n");
    ASSERT_THAT(mounts, SizeIs(1));
    const Mount& mount = mounts.front();
    EXPECT_EQ(mount.id, 36U);
    EXPECT_EQ(mount.parent, 35U);
    EXPECT_EQ(mount.major, 98U);
    EXPECT_EQ(mount.minor, 7U);
    EXPECT_EQ(mount.root, "/mnt1");
    EXPECT_EQ(mount.mountPoint, "/mnt2");
    EXPECT_EQ(mount.options, "rw,noatime");
    EXPECT_EQ(mount.type, "ext3");
    EXPECT_EQ(mount.source, "/dev/root");
    EXPECT_EQ(mount.superOptions, "rw,errors=continue");
}

TEST(MountTable, KeepsTheOrderOfTheLines) {
    const auto mounts = parse(
        "2 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
        "9 2 8:2 / /b rw - ext4 /dev/sda2 rw\n"
        "5 2 8:3 / /a rw - ext4 /dev/sda3 rw\n");
    ASSERT_THAT(mounts, SizeIs(3));
    EXPECT_EQ(mounts[1].mountPoint, "/b");
    EXPECT_EQ(mounts[2].mountPoint, "/a");
}

struct LineRow : NamedRow {
    std::string line;
    std::string source;  ///< of the mount
};

class MountLine : public testing::TestWithParam<LineRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, MountLine,
    testing::Values(
        LineRow{{"NoOptionalField"}, "1 2 0:3 / /a rw - tmpfs none rw", "none"},
        LineRow{{"ThreeOptionalFields"},
                "1 2 0:3 / /a rw shared:1 master:2 propagate_from:3 - tmpfs none rw",
                "none"},
        LineRow{{"UnknownOptionalField"}, "1 2 0:3 / /a rw new:9 - tmpfs none rw", "none"},
        LineRow{{"EmptySource"}, "1 2 0:3 / /a rw - tmpfs  rw", ""},
        LineRow{{"SourceIsADash"}, "1 2 0:3 / /a rw - tmpfs - rw", "-"},
        LineRow{
            {"RootIsNoPath"}, "1 2 0:4 net:[4026532000] /run/netns/a rw - nsfs nsfs rw", "nsfs"},
        LineRow{{"LargestNumbers"},
                "18446744073709551615 18446744073709551614 4294967295:4294967295 / /a rw - x y rw",
                "y"}),
    rowName<LineRow>);

TEST_P(MountLine, IsUnderstood) {
    const std::string text = GetParam().line + "\n";
    const auto mounts = parse(text);
    ASSERT_THAT(mounts, SizeIs(1));
    EXPECT_EQ(mounts.front().source, GetParam().source);
}

struct MalformedRow : NamedRow {
    std::string line;
};

class MalformedMountLine : public testing::TestWithParam<MalformedRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, MalformedMountLine,
    testing::Values(MalformedRow{{"Empty"}, ""}, MalformedRow{{"OneWord"}, "36"},
                    MalformedRow{{"IDIsNoNumber"}, "x 2 0:3 / /a rw - tmpfs none rw"},
                    MalformedRow{{"IDWithARest"}, "1x 2 0:3 / /a rw - tmpfs none rw"},
                    MalformedRow{{"IDIsNegative"}, "-1 2 0:3 / /a rw - tmpfs none rw"},
                    MalformedRow{{"ParentIsNoNumber"}, "1 x 0:3 / /a rw - tmpfs none rw"},
                    MalformedRow{{"DeviceWithoutColon"}, "1 2 03 / /a rw - tmpfs none rw"},
                    MalformedRow{{"DeviceWithoutMinor"}, "1 2 0: / /a rw - tmpfs none rw"},
                    MalformedRow{{"DeviceWithoutMajor"}, "1 2 :3 / /a rw - tmpfs none rw"},
                    MalformedRow{{"DeviceTooLarge"}, "1 2 4294967296:3 / /a rw - tmpfs none rw"},
                    MalformedRow{{"RootIsEmpty"}, "1 2 0:3  /a rw - tmpfs none rw"},
                    MalformedRow{{"MountPointIsNoPath"}, "1 2 0:3 / a rw - tmpfs none rw"},
                    MalformedRow{{"CutAfterTheMountPoint"}, "1 2 0:3 / /a"},
                    MalformedRow{{"NoSeparator"}, "1 2 0:3 / /a rw shared:1 tmpfs none rw"},
                    MalformedRow{{"CutAfterTheSeparator"}, "1 2 0:3 / /a rw -"},
                    MalformedRow{{"TypeIsEmpty"}, "1 2 0:3 / /a rw -  none rw"},
                    MalformedRow{{"CutAfterTheType"}, "1 2 0:3 / /a rw - tmpfs"},
                    MalformedRow{{"CutAfterTheSource"}, "1 2 0:3 / /a rw - tmpfs none"}),
    rowName<MalformedRow>);

TEST_P(MalformedMountLine, IsLeftOutAndTheOthersStay) {
    const std::string good = "7 1 8:1 / / rw - ext4 /dev/sda1 rw\n";
    const std::string text = good + GetParam().line + "\n" + good;
    EXPECT_THAT(parse(text), SizeIs(2));
}

TEST(MountTable, ALineThatWasCutOffIsLeftOut) {
    EXPECT_THAT(parse("7 1 8:1 / / rw - ext4 /dev/sda1 rw\n8 7 8:2 / /a rw - ext4 /dev/sda2 r"),
                SizeIs(1));
}

TEST(MountTable, AnEmptyTextHasNoMounts) {
    EXPECT_THAT(parse(""), IsEmpty());
    EXPECT_THAT(parse("\n\n\n"), IsEmpty());
}

TEST(MountTable, HoldsAsManyMountsAsThereAre) {
    std::string text;
    for (int i = 0; i < 20000; ++i)
        text += std::to_string(i + 2) + " 1 0:" + std::to_string(i) + " / /m rw - tmpfs none rw\n";
    EXPECT_THAT(parse(text), SizeIs(20000));
}

TEST(MountTable, ForgetsTheMountsOfTheTextBefore) {
    std::vector<Mount> mounts;
    parseMountTable("7 1 8:1 / / rw - ext4 /dev/sda1 rw\n", mounts);
    parseMountTable("", mounts);
    EXPECT_THAT(mounts, IsEmpty());
}

struct EscapeRow : NamedRow {
    std::string written;
    std::string meant;
};

class MountText : public testing::TestWithParam<EscapeRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, MountText,
    testing::Values(
        EscapeRow{{"Plain"}, "/mnt/data", "/mnt/data"}, EscapeRow{{"Empty"}, "", ""},
        EscapeRow{{"Blank"}, "/a\\040b", "/a b"}, EscapeRow{{"Tab"}, "\\011", "\t"},
        EscapeRow{{"LineEnd"}, "a\\012b", "a\nb"}, EscapeRow{{"Backslash"}, "a\\134b", "a\\b"},
        EscapeRow{{"NumberSign"}, "\\043", "#"},
        EscapeRow{{"BackslashThatSpellsABlank"}, "\\134040", "\\040"},
        EscapeRow{{"Highest"}, "\\377", "\xFF"}, EscapeRow{{"TooHigh"}, "\\400", "\\400"},
        EscapeRow{{"NotOctal"}, "\\048", "\\048"}, EscapeRow{{"CutOff"}, "a\\04", "a\\04"},
        EscapeRow{{"Lone"}, "\\", "\\"}, EscapeRow{{"UTF8"}, "/mnt/\xC3\xA9", "/mnt/\xC3\xA9"}),
    rowName<EscapeRow>);

TEST_P(MountText, IsUnescaped) {
    EXPECT_EQ(unescapeMountText(GetParam().written), GetParam().meant);
}

}  // namespace
}  // namespace vantor::mount_table_test

#include "platform/linux/storage/udev_data.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/named_row.h"

namespace vantor::udev_data_test {
namespace {

struct Row : NamedRow {
    std::string text;
    std::optional<std::string> label;
};

class UdevData : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, UdevData,
    testing::Values(
        Row{{"Empty"}, "", std::nullopt},
        Row{{"NoLabel"}, "I:123\nE:ID_FS_TYPE=ext4\nG:systemd\n", std::nullopt},
        Row{{"Plain"}, "S:disk/by-label/x\nE:ID_FS_LABEL=x\nE:ID_FS_LABEL_ENC=x\n", "x"},
        Row{{"Encoded"}, "E:ID_FS_LABEL=My_Disk\nE:ID_FS_LABEL_ENC=My\\x20Disk\n", "My Disk"},
        Row{{"EncodedFirst"}, "E:ID_FS_LABEL_ENC=a\\x2fb\nE:ID_FS_LABEL=a_b\n", "a/b"},
        Row{{"CapitalDigits"}, "E:ID_FS_LABEL_ENC=\\x5C\\xC3\\xA9\n", "\\\xC3\xA9"},
        Row{{"NotEncoded"}, "E:ID_FS_LABEL=My_Disk\n", "My_Disk"},
        Row{{"EmptyLabel"}, "E:ID_FS_LABEL_ENC=\n", std::nullopt},
        Row{{"LabelOfThePartition"}, "E:ID_PART_ENTRY_NAME=EFI\n", std::nullopt},
        Row{{"KeyInsideAValue"}, "E:X=E:ID_FS_LABEL=no\n", std::nullopt},
        Row{{"NoLineEnd"}, "E:ID_FS_LABEL_ENC=last", "last"},
        Row{{"CutEscape"}, "E:ID_FS_LABEL_ENC=a\\x2", "a\\x2"},
        Row{{"NoEscape"}, "E:ID_FS_LABEL_ENC=a\\xzz\n", "a\\xzz"},
        Row{{"HalfAnEscape"}, "E:ID_FS_LABEL_ENC=a\\x2zb\n", "a\\x2zb"},
        Row{{"EqualSigns"}, "E:ID_FS_LABEL_ENC=a=b\n", "a=b"}),
    rowName<Row>);

TEST_P(UdevData, TellsTheLabel) {
    EXPECT_EQ(labelInUdevData(GetParam().text), GetParam().label);
}

}  // namespace
}  // namespace vantor::udev_data_test

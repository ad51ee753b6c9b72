#include "platform/linux/graphics/drm_fdinfo.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::drm_fdinfo_test {
namespace {

const std::string i915 =
    "pos:\t0\nflags:\t02100002\nmnt_id:\t26\nino:\t481\n"
    "drm-driver:\ti915\ndrm-client-id:\t7\ndrm-pdev:\t0000:00:02.0\n"
    "drm-total-system0:\t29904 KiB\ndrm-shared-system0:\t0\n"
    "drm-engine-render:\t9288864723 ns\ndrm-engine-copy:\t2035071108 ns\n"
    "drm-engine-video:\t0 ns\ndrm-engine-capacity-video:\t2\n"
    "drm-engine-video-enhance:\t5 ns\n";

const std::string xe =
    "drm-driver:\txe\ndrm-client-id:\t12\ndrm-pdev:\t0000:03:00.0\n"
    "drm-cycles-rcs:\t28257900\ndrm-total-cycles-rcs:\t7655183225\n"
    "drm-cycles-vcs:\t0\ndrm-total-cycles-vcs:\t7655183225\ndrm-engine-capacity-vcs:\t2\n";

const DRMEngine* find(const DRMFdInfo& info, std::string_view name) {
    for (const DRMEngine& engine : info.engines()) {
        if (engine.name == name) return &engine;
    }
    return nullptr;
}

TEST(DRMFdInfo, OfI915TellsNanoseconds) {
    const auto info = DRMFdInfo::parse(i915);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->driver, "i915");
    EXPECT_EQ(info->clientID, 7U);
    EXPECT_EQ(info->device, (PCIAddress{0, 0, 2, 0}));
    ASSERT_EQ(info->engines().size(), 4U);
    EXPECT_EQ(find(*info, "render")->busyNanoseconds, 9288864723U);
    EXPECT_EQ(find(*info, "render")->capacity, 1U);
    EXPECT_EQ(find(*info, "video")->capacity, 2U);
    EXPECT_EQ(find(*info, "video-enhance")->busyNanoseconds, 5U);
}

TEST(DRMFdInfo, OfXeTellsCycles) {
    const auto info = DRMFdInfo::parse(xe);
    ASSERT_TRUE(info);
    EXPECT_EQ(find(*info, "rcs")->cycles, 28257900U);
    EXPECT_EQ(find(*info, "rcs")->totalCycles, 7655183225U);
    EXPECT_EQ(find(*info, "rcs")->busyNanoseconds, std::nullopt);
    EXPECT_EQ(find(*info, "vcs")->capacity, 2U);
}

TEST(DRMFdInfo, OfADeviceOnNoBusTellsNoPlace) {
    const auto info =
        DRMFdInfo::parse("drm-driver:\tv3d\ndrm-client-id:\t1\ndrm-engine-bin: \t9 ns\n");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->device, std::nullopt);
    EXPECT_EQ(find(*info, "bin")->busyNanoseconds, 9U);
}

struct Row {
    const char* name;
    const char* text;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class NoClient : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, NoClient,
    testing::Values(Row{"Empty", ""},
                    Row{"OtherFile", "pos:\t0\nflags:\t02\nmnt_id:\t26\nino:\t481\n"},
                    Row{"WithoutIdentifier", "drm-driver:\ti915\ndrm-engine-render:\t5 ns\n"},
                    Row{"WithoutEngines", "drm-driver:\tvgem\ndrm-client-id:\t7\n"},
                    Row{"MemoryAlone", "drm-client-id:\t7\ndrm-total-vram0:\t5 KiB\n"},
                    Row{"CapacityAlone", "drm-client-id:\t7\ndrm-engine-capacity-render:\t1\n"},
                    Row{"CyclesWithoutTotal", "drm-client-id:\t7\ndrm-cycles-rcs:\t1\n"},
                    Row{"CutEngine", "drm-client-id:\t7\ndrm-engine-render:\t5 ns"},
                    Row{"CutIdentifier", "drm-engine-render:\t5 ns\ndrm-client-id:\t7"},
                    Row{"OtherUnit", "drm-client-id:\t7\ndrm-engine-render:\t5 us\n"},
                    Row{"NoUnit", "drm-client-id:\t7\ndrm-engine-render:\t5\n"},
                    Row{"NegativeTime", "drm-client-id:\t7\ndrm-engine-render:\t-5 ns\n"},
                    Row{"TooLarge",
                        "drm-client-id:\t7\ndrm-engine-render:\t18446744073709551616 ns\n"},
                    Row{"NoName", "drm-client-id:\t7\ndrm-engine-:\t5 ns\n"},
                    Row{"NoColon", "drm-client-id:\t7\ndrm-engine-render\t5 ns\n"},
                    Row{"IdentifierIsNoNumber", "drm-client-id:\tx\ndrm-engine-render:\t5 ns\n"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(NoClient, IsToldByTheText) {
    EXPECT_FALSE(DRMFdInfo::parse(GetParam().text));
}

TEST(DRMFdInfo, WithoutCapacityDividesByOne) {
    const auto info = DRMFdInfo::parse(
        "drm-client-id:\t7\ndrm-engine-capacity-a:\t0\ndrm-engine-a:\t5 ns\n"
        "drm-engine-b:\t6 ns\ndrm-engine-capacity-b:\tx\n");
    ASSERT_TRUE(info);
    EXPECT_EQ(find(*info, "a")->capacity, 1U);
    EXPECT_EQ(find(*info, "b")->capacity, 1U);
}

TEST(DRMFdInfo, WithEnginesBeyondNumberKeepsTheFirst) {
    std::string text = "drm-client-id:\t7\n";
    for (int i = 0; i < 1000; ++i)
        text += "drm-engine-e" + std::to_string(i) + ":\t1 ns\n";
    const auto info = DRMFdInfo::parse(text);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->engines().size(), DRMFdInfo::maxEngines);
}

TEST(DRMFdInfo, MayBeCutAnywhere) {
    for (const std::string& whole : {i915, xe}) {
        for (std::size_t length = 0; length < whole.size(); ++length) {
            const auto info = DRMFdInfo::parse(std::string_view(whole).substr(0, length));
            if (!info) continue;
            const auto all = DRMFdInfo::parse(whole);
            for (const DRMEngine& engine : info->engines()) {
                if (!engine.busyNanoseconds) continue;
                EXPECT_EQ(engine.busyNanoseconds, find(*all, engine.name)->busyNanoseconds);
            }
        }
    }
}

}  // namespace
}  // namespace vantor::drm_fdinfo_test

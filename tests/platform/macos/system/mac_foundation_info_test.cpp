#include "platform/macos/system/mac_foundation_info.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::mac_foundation_info_test {
namespace {

using testing::Optional;

class MacFoundationInfoTest : public FakeDarwinTest {
  protected:
    void SetUp() override { setMethods({}); }

    /// A process info with everything, some of it in place of the usual answers.
    void setMethods(const std::map<std::string, FakeObject::Answer>& others) {
        std::map<std::string, FakeObject::Answer> methods{
            {"thermalState", std::int64_t{2}},
            {"isLowPowerModeEnabled", true},
            {"operatingSystemVersion", ObjectiveCTable::Version{14, 2, 1}},
            {"hostName", objects.text("studio.local")},
            {"processorCount", std::uint64_t{10}},
            {"activeProcessorCount", std::uint64_t{8}},
            {"physicalMemory", std::uint64_t{1} << 35},
            {"systemUptime", 3600.5}};
        for (const auto& [name, answer] : others)
            methods[name] = answer;
        darwin.processInfo = objects.instance(methods);
    }
    static void readAll(const MacFoundationInfo& info) {
        std::string name;
        info.thermalState();
        info.isLowPowerModeEnabled();
        info.operatingSystemVersion();
        info.hostName(name);
        info.processorCount();
        info.activeProcessorCount();
        info.physicalMemory();
        info.systemUptime();
    }

    FakeObjects& objects = darwin.objects;
};

TEST_F(MacFoundationInfoTest, TellsWhatTheSystemSays) {
    const MacFoundationInfo info(darwin.frameworks());
    EXPECT_THAT(info.thermalState(), Optional(2));
    EXPECT_THAT(info.isLowPowerModeEnabled(), Optional(true));
    const auto version = info.operatingSystemVersion();
    ASSERT_TRUE(version);
    EXPECT_EQ(version->major, 14);
    EXPECT_EQ(version->minor, 2);
    EXPECT_EQ(version->patch, 1);
    std::string name = "from before";
    EXPECT_TRUE(info.hostName(name));
    EXPECT_EQ(name, "studio.local");
    EXPECT_THAT(info.processorCount(), Optional(10));
    EXPECT_THAT(info.activeProcessorCount(), Optional(8));
    EXPECT_THAT(info.physicalMemory(), Optional(std::uint64_t{1} << 35));
    EXPECT_THAT(info.systemUptime(), Optional(3600.5));
}

TEST_F(MacFoundationInfoTest, KnowsNothingWithoutTheClassOrItsObject) {
    const MacFoundationInfo info(darwin.frameworks());
    const auto expectNothing = [&] {
        std::string name = "from before";
        EXPECT_FALSE(info.hostName(name));
        EXPECT_EQ(name, "");
        EXPECT_EQ(info.thermalState(), std::nullopt);
        EXPECT_FALSE(info.operatingSystemVersion());
    };
    darwin.processInfo = nullptr;
    expectNothing();
    darwin.hasProcessInfoClass = false;
    expectNothing();
}

TEST_F(MacFoundationInfoTest, DoesNotAskASystemThatHasNoLowPowerMode) {
    darwin.processInfo = objects.instance({{"thermalState", std::int64_t{0}}});
    const MacFoundationInfo info(darwin.frameworks());
    EXPECT_EQ(info.isLowPowerModeEnabled(), std::nullopt);
    EXPECT_THAT(info.thermalState(), Optional(0));
}

TEST_F(MacFoundationInfoTest, HasNoNumberThatDoesNotFit) {
    const MacFoundationInfo info(darwin.frameworks());
    setMethods({{"thermalState", std::numeric_limits<std::int64_t>::max()},
                {"processorCount", std::uint64_t{0}},
                {"activeProcessorCount", ~std::uint64_t{0}},
                {"operatingSystemVersion",
                 ObjectiveCTable::Version{14, std::numeric_limits<long>::max(), 0}}});
    EXPECT_EQ(info.thermalState(), std::nullopt);
    EXPECT_EQ(info.processorCount(), std::nullopt);
    EXPECT_EQ(info.activeProcessorCount(), std::nullopt);
    EXPECT_FALSE(info.operatingSystemVersion());
}

TEST_F(MacFoundationInfoTest, HasNoNameThatIsNoText) {
    const MacFoundationInfo info(darwin.frameworks());
    for (const Ref other : objectsOtherThan(FakeObject::Kind::text)) {
        setMethods({{"hostName", other}});
        std::string name = "from before";
        EXPECT_FALSE(info.hostName(name));
        EXPECT_EQ(name, "");
    }
}

TEST_F(MacFoundationInfoTest, SurvivesEachFunctionMissing) {
    withEachFunctionMissing(
        [](const std::shared_ptr<const Frameworks>& some) { readAll(MacFoundationInfo(some)); });
}

TEST_F(MacFoundationInfoTest, SurvivesEachCallFailing) {
    withEachCallFailing(40, [](const std::shared_ptr<const Frameworks>& some) {
        readAll(MacFoundationInfo(some));
    });
}

TEST_F(MacFoundationInfoTest, KeepsNothingOfManyReads) {
    const MacFoundationInfo info(darwin.frameworks());
    manyTimes([&] { readAll(info); });
}

}  // namespace
}  // namespace vantor::mac_foundation_info_test

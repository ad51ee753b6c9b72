#include "platform/macos/power/mac_power_sources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::mac_power_sources_test {
namespace {

using testing::Eq;
using testing::Optional;

class MacPowerSourcesTest : public FakeDarwinTest {
  protected:
    Ref battery(int percent) {
        return objects.dictionary(
            {{objects.text("Type"), objects.text("InternalBattery")},
             {objects.text("Name"), objects.text("InternalBattery-0")},
             {objects.text("Power Source State"), objects.text("Battery Power")},
             {objects.text("Current Capacity"), objects.integer(percent)},
             {objects.text("Max Capacity"), objects.integer(100)},
             {objects.text("Is Charging"), objects.boolean(false)},
             {objects.text("Time to Empty"), objects.integer(212)}});
    }

    /// Asks everything that there is to ask.
    static void readAll(MacPowerSources& sources) {
        const auto info = sources.copyInfo();
        const std::size_t count = info ? info->count().value_or(0) : 0;
        for (std::size_t i = 0; i <= count && info; ++i) {
            if (info->hasSource(i)) info->description(i);
        }
    }

    FakeObjects& objects = darwin.objects;
};

TEST_F(MacPowerSourcesTest, DescribesEachSource) {
    darwin.powerSources = {{false, battery(80)}, {false, battery(40)}};
    MacPowerSources sources(darwin.frameworks());
    const auto info = sources.copyInfo();
    ASSERT_TRUE(info);
    EXPECT_THAT(info->count(), Optional(2u));
    for (const std::size_t i : {0u, 1u}) {
        ASSERT_TRUE(info->hasSource(i));
        const PropertyDictionary* const description = info->description(i);
        ASSERT_TRUE(description);
        EXPECT_EQ(*findText(*description, "Type"), "InternalBattery");
        EXPECT_THAT(findInteger(*description, "Current Capacity"), Optional(i == 0 ? 80 : 40));
        EXPECT_THAT(findBoolean(*description, "Is Charging"), Optional(false));
    }
    EXPECT_FALSE(info->hasSource(2));
    EXPECT_EQ(info->description(2), nullptr);
}

TEST_F(MacPowerSourcesTest, TellsAnEmptyListFromNone) {
    MacPowerSources sources(darwin.frameworks());
    EXPECT_THAT(sources.copyInfo()->count(), Optional(0u));
    for (const Ref other : objectsOtherThan(FakeObject::Kind::array)) {
        darwin.otherPowerList = other;
        EXPECT_EQ(sources.copyInfo()->count(), std::nullopt);
    }
    darwin.hasPowerInfo = false;
    EXPECT_EQ(sources.copyInfo(), nullptr);
}

TEST_F(MacPowerSourcesTest, TellsWhichEntriesCannotBeFetched) {
    darwin.powerSources = {{true, nullptr}, {false, battery(40)}};
    const auto info = MacPowerSources(darwin.frameworks()).copyInfo();
    EXPECT_THAT(info->count(), Optional(2u));
    EXPECT_FALSE(info->hasSource(0));
    EXPECT_EQ(info->description(0), nullptr);
    EXPECT_TRUE(info->description(1));
}

TEST_F(MacPowerSourcesTest, HasNoDescriptionThatIsNoDictionary) {
    for (const Ref other : objectsOtherThan(FakeObject::Kind::dictionary)) {
        darwin.powerSources = {{false, other}};
        const auto info = MacPowerSources(darwin.frameworks()).copyInfo();
        EXPECT_TRUE(info->hasSource(0));
        EXPECT_EQ(info->description(0), nullptr);
    }
}

TEST_F(MacPowerSourcesTest, SurvivesEachFunctionMissing) {
    darwin.powerSources = {{false, battery(80)}, {true, nullptr}};
    withEachFunctionMissing([](const std::shared_ptr<const Frameworks>& some) {
        MacPowerSources sources(some);
        readAll(sources);
    });
}

TEST_F(MacPowerSourcesTest, SurvivesEachCallFailing) {
    darwin.powerSources = {{false, battery(80)}, {false, battery(40)}};
    withEachCallFailing(20, [](const std::shared_ptr<const Frameworks>& some) {
        MacPowerSources sources(some);
        readAll(sources);
    });
}

TEST_F(MacPowerSourcesTest, KeepsNothingOfManyReads) {
    darwin.powerSources = {{false, battery(80)}};
    MacPowerSources sources(darwin.frameworks());
    manyTimes([&] { readAll(sources); });
}

}  // namespace
}  // namespace vantor::mac_power_sources_test

#include "platform/macos/graphics/mac_accelerators.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::mac_accelerators_test {
namespace {

using testing::Optional;

class MacAcceleratorsTest : public FakeDarwinTest {
  protected:
    void SetUp() override {
        darwin.accelerators = {
            {4294969000,
             {{"model", objects.data(std::string("Radeon\0", 7))},
              {"PerformanceStatistics",
               objects.dictionary(
                   {{objects.text("Device Utilization %"), objects.integer(12)},
                    {objects.integer(3), objects.integer(4)},
                    {objects.text("Nested"), objects.dictionary({{objects.text("Temperature(C)"),
                                                                  objects.floating(51.5)}})}})}}},
            {std::nullopt, {{"model", objects.text("Other")}}}};
    }

    /// Asks everything that there is to ask; how many services there were.
    static int readAll(MacAccelerators& accelerators) {
        const auto iterator = accelerators.matchingServices();
        if (!iterator) return -1;
        int services = 0;
        while (const auto service = accelerators.iteratorNext(*iterator)) {
            ++services;
            accelerators.property(service, "PerformanceStatistics");
            accelerators.property(service, "model");
            accelerators.registryEntryID(service);
            accelerators.release(service);
        }
        accelerators.release(*iterator);
        return services;
    }

    FakeObjects& objects = darwin.objects;
};

TEST_F(MacAcceleratorsTest, TellsWhatTheDriversPublish) {
    MacAccelerators accelerators(darwin.frameworks());
    const auto iterator = accelerators.matchingServices();
    ASSERT_TRUE(iterator);
    const auto first = accelerators.iteratorNext(*iterator);
    ASSERT_NE(first, 0u);
    EXPECT_THAT(accelerators.registryEntryID(first), Optional(4294969000u));
    const PropertyValue* statistics = accelerators.property(first, "PerformanceStatistics");
    ASSERT_TRUE(statistics && statistics->dictionary());
    EXPECT_EQ(statistics->dictionary()->size(), 2u);
    EXPECT_THAT(findInteger(*statistics->dictionary(), "Device Utilization %"), Optional(12));
    EXPECT_EQ(accelerators.property(first, "model")->data()->size(), 7u);
    EXPECT_EQ(accelerators.property(first, "nothing"), nullptr);
    const auto second = accelerators.iteratorNext(*iterator);
    EXPECT_EQ(accelerators.registryEntryID(second), std::nullopt);
    EXPECT_EQ(*accelerators.property(second, "model")->text(), "Other");
    EXPECT_EQ(accelerators.iteratorNext(*iterator), 0u);
    accelerators.release(second);
    accelerators.release(first);
    accelerators.release(*iterator);
}

TEST_F(MacAcceleratorsTest, TellsNoServiceFromNoLookup) {
    MacAccelerators accelerators(darwin.frameworks());
    darwin.accelerators.clear();
    EXPECT_EQ(accelerators.matchingServices(), 0u);
    EXPECT_EQ(readAll(accelerators), 0);
    darwin.lookupFails = true;
    EXPECT_EQ(accelerators.matchingServices(), std::nullopt);
}

TEST_F(MacAcceleratorsTest, TellsOfWhateverADriverPublishes) {
    MacAccelerators accelerators(darwin.frameworks());
    for (const Ref other : objectsOtherThan(FakeObject::Kind::dictionary)) {
        darwin.accelerators.front().properties["PerformanceStatistics"] = other;
        EXPECT_EQ(readAll(accelerators), 2);
    }
}

TEST_F(MacAcceleratorsTest, SurvivesEachFunctionMissing) {
    withEachFunctionMissing([](const std::shared_ptr<const Frameworks>& some) {
        MacAccelerators accelerators(some);
        readAll(accelerators);
        accelerators.release(0);
    });
}

TEST_F(MacAcceleratorsTest, SurvivesEachCallFailing) {
    withEachCallFailing(20, [](const std::shared_ptr<const Frameworks>& some) {
        MacAccelerators accelerators(some);
        readAll(accelerators);
    });
}

TEST_F(MacAcceleratorsTest, KeepsNothingOfManyReads) {
    MacAccelerators accelerators(darwin.frameworks());
    manyTimes([&] { ASSERT_EQ(readAll(accelerators), 2); });
}

}  // namespace
}  // namespace vantor::mac_accelerators_test

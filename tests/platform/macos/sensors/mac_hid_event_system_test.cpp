#include "platform/macos/sensors/mac_hid_event_system.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <thread>
#include <vector>

#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::mac_hid_event_system_test {
namespace {

using testing::IsEmpty;
using testing::Optional;

constexpr auto ioKitPath = "/System/Library/Frameworks/IOKit.framework/IOKit";

struct Reading {
    std::optional<std::string> product;
    std::optional<double> value;
};

class MacHIDEventSystemTest : public FakeDarwinTest {
  protected:
    void SetUp() override {
        darwin.sensors = {{objects.text("PMU tdie1"), 48.25}, {objects.text("gas gauge"), {}}};
    }

    static HIDEventSystem::Functions functionsOf(MacHIDEventSystem& system, void* library) {
        return {system.findFunction(library, "IOHIDEventSystemClientCreate"),
                system.findFunction(library, "IOHIDEventSystemClientSetMatching"),
                system.findFunction(library, "IOHIDEventSystemClientCopyServices"),
                system.findFunction(library, "IOHIDServiceClientCopyProperty"),
                system.findFunction(library, "IOHIDServiceClientCopyEvent"),
                system.findFunction(library, "IOHIDEventGetFloatValue")};
    }

    /// Everything that there is; absent when there is no list.
    static std::optional<std::vector<Reading>> readAll(MacHIDEventSystem& system) {
        void* const library = system.openLibrary(ioKitPath);
        const auto functions = functionsOf(system, library);
        const auto readings = readAll(system, functions);
        system.closeLibrary(library);
        return readings;
    }

    static std::optional<std::vector<Reading>> readAll(MacHIDEventSystem& system,
                                                       const HIDEventSystem::Functions& functions) {
        const auto client = system.createClient(functions);
        system.setMatching(functions, client, 65280, 5);
        std::vector<HIDEventSystem::Object> services;
        std::optional<std::vector<Reading>> readings;
        if (system.copyServices(functions, client, services)) readings.emplace();
        for (const auto service : services) {
            Reading& reading = readings->emplace_back();
            reading.product = system.copyProperty(functions, service, "Product");
            const auto event = system.copyEvent(functions, service, 15);
            if (event != 0) reading.value = system.floatValue(functions, event, 0xF0000);
            system.release(event);
            system.release(service);
        }
        system.release(client);
        return readings;
    }

    FakeObjects& objects = darwin.objects;
};

TEST_F(MacHIDEventSystemTest, TellsTheSensorsWithTheirValues) {
    MacHIDEventSystem system(darwin.frameworks());
    const auto readings = readAll(system);
    ASSERT_TRUE(readings);
    ASSERT_EQ(readings->size(), 2u);
    EXPECT_THAT((*readings)[0].product, Optional(std::string("PMU tdie1")));
    EXPECT_THAT((*readings)[0].value, Optional(48.25));
    EXPECT_EQ((*readings)[1].value, std::nullopt);
    EXPECT_EQ(darwin.sensorListsMatched, 1);
}

TEST_F(MacHIDEventSystemTest, OutlivesTheListThatTheServicesCameIn) {
    MacHIDEventSystem system(darwin.frameworks());
    void* const library = system.openLibrary(ioKitPath);
    const auto functions = functionsOf(system, library);
    const auto client = system.createClient(functions);
    std::vector<HIDEventSystem::Object> services{1};
    EXPECT_TRUE(system.copyServices(functions, client, services));
    ASSERT_EQ(services.size(), 3u);
    system.release(client);
    darwin.objects.sweep();
    EXPECT_THAT(system.copyProperty(functions, services[1], "Product"),
                Optional(std::string("PMU tdie1")));
    system.release(services[1]);
    system.release(services[2]);
}

TEST_F(MacHIDEventSystemTest, HasNoListThatIsNone) {
    MacHIDEventSystem system(darwin.frameworks());
    for (const Ref other : objectsOtherThan(FakeObject::Kind::array)) {
        darwin.otherSensorList = other;
        EXPECT_FALSE(readAll(system));
    }
    darwin.otherSensorList = objects.array({nullptr});
    EXPECT_EQ(readAll(system)->size(), 0u);
}

TEST_F(MacHIDEventSystemTest, HasNoProductThatIsNoText) {
    MacHIDEventSystem system(darwin.frameworks());
    for (const Ref other : objectsOtherThan(FakeObject::Kind::text)) {
        darwin.sensors = {{other, 20.0}};
        EXPECT_EQ(readAll(system)->front().product, std::nullopt);
    }
}

TEST_F(MacHIDEventSystemTest, SurvivesEachOfItsFunctionsMissing) {
    for (const auto* const name :
         {"IOHIDEventSystemClientCreate", "IOHIDEventSystemClientSetMatching",
          "IOHIDEventSystemClientCopyServices", "IOHIDServiceClientCopyProperty",
          "IOHIDServiceClientCopyEvent", "IOHIDEventGetFloatValue"}) {
        darwin.missingFunctions = {name};
        MacHIDEventSystem system(darwin.frameworks());
        const auto readings = readAll(system);
        if (readings && !readings->empty() && readings->front().value &&
            name == std::string_view("IOHIDEventGetFloatValue")) {
            EXPECT_TRUE(std::isnan(*readings->front().value));
        }
    }
    MacHIDEventSystem system(darwin.frameworks());
    EXPECT_EQ(readAll(system, {}), std::nullopt);
}

TEST_F(MacHIDEventSystemTest, SurvivesEachFunctionMissing) {
    withEachFunctionMissing([](const std::shared_ptr<const Frameworks>& some) {
        MacHIDEventSystem system(some);
        readAll(system);
    });
}

TEST_F(MacHIDEventSystemTest, SurvivesEachCallFailing) {
    withEachCallFailing(10, [](const std::shared_ptr<const Frameworks>& some) {
        MacHIDEventSystem system(some);
        readAll(system);
    });
}

TEST_F(MacHIDEventSystemTest, KeepsNothingOfManyReads) {
    MacHIDEventSystem system(darwin.frameworks());
    manyTimes([&] { ASSERT_EQ(readAll(system)->size(), 2u); });
    EXPECT_EQ(darwin.sensorListsMatched, 10'000);
}

TEST_F(MacHIDEventSystemTest, AnswersSeveralThreadsAtOnce) {
    std::vector<std::thread> threads;
    MacHIDEventSystem system(darwin.frameworks());
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < 50; ++j)
                EXPECT_EQ(readAll(system)->size(), 2u);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

TEST(MacHIDEventSystemLibrary, IsOpenedByTheSystem) {
    const auto frameworks = std::make_shared<Frameworks>();
    frameworks->loader = systemLibraryLoader();
    MacHIDEventSystem system(frameworks);
    EXPECT_EQ(system.openLibrary("/nowhere/none.framework/none"), nullptr);
    void* const program = system.openLibrary(nullptr);
    ASSERT_TRUE(program);
    EXPECT_TRUE(system.findFunction(program, "malloc"));
    EXPECT_EQ(system.findFunction(program, "IOHIDNoSuchFunction"), nullptr);
    system.closeLibrary(program);
}

}  // namespace
}  // namespace vantor::mac_hid_event_system_test

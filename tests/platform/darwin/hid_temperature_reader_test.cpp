#include "platform/darwin/hid_temperature_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <limits>
#include <string>
#include <vector>

#include "platform/simulated/simulated_machine.h"
#include "support/patient_threads.h"

namespace vantor::hid_temperature_reader_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using Reading = HIDTemperatureReader::Reading;

class HIDTemperatureReaderTest : public testing::Test {
  protected:
    HIDTemperatureReaderTest() { system.services = {{"PMU tdie1", 48.25}}; }
    ~HIDTemperatureReaderTest() override {
        expectNothingOutstanding();
        EXPECT_EQ(system.improperCalls(), 0);
    }

    void expectNothingOutstanding() const {
        EXPECT_EQ(system.clientsOutstanding(), 0);
        EXPECT_EQ(system.servicesOutstanding(), 0);
        EXPECT_EQ(system.eventsOutstanding(), 0);
    }

    std::vector<Reading> read() { return *reader.readings(); }
    std::vector<Reading> readLater() {
        machine.clock()->wind(251ms);
        return read();
    }

    SimulatedMachine machine;
    SimulatedHIDEventSystem& system = machine.hidEventSystem();
    HIDTemperatureReader reader{system, machine.processInfo()};
};

TEST_F(HIDTemperatureReaderTest, ListsSensorsInTheirOrderWithLowerCasedNamesAndAnyValue) {
    system.services = {{"PMU tdie2", 50},
                       {"pACC MTR Temp Sensor1", -300},
                       {"GPU", 1e9},
                       {"PMU tdie2", std::numeric_limits<double>::infinity()}};
    EXPECT_THAT(read(), ElementsAre(Reading{"pmu tdie2", 50},
                                    Reading{"pacc mtr temp sensor1", -300}, Reading{"gpu", 1e9},
                                    Reading{"pmu tdie2", std::numeric_limits<double>::infinity()}));
}

TEST_F(HIDTemperatureReaderTest, SkipsSensorsWithoutANameOrAnEvent) {
    system.services = {
        {std::nullopt, 50}, {"", 51}, {"PMU tdie1", std::nullopt}, {"PMU tdie2", 53}};
    EXPECT_THAT(read(), ElementsAre(Reading{"pmu tdie2", 53}));
}

TEST_F(HIDTemperatureReaderTest, IsEmptyWithoutTheLibrary) {
    system.hasLibrary = false;
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_EQ(system.functionsSought(), 0);
    system.hasLibrary = true;
    EXPECT_THAT(readLater(), IsEmpty()) << "the library is sought once";
    EXPECT_EQ(system.librariesOpened(), 1);
}

TEST_F(HIDTemperatureReaderTest, IsEmptyWithoutAnyOneOfTheFunctions) {
    for (const char* name : {"IOHIDEventSystemClientCreate", "IOHIDEventSystemClientSetMatching",
                             "IOHIDEventSystemClientCopyServices", "IOHIDServiceClientCopyProperty",
                             "IOHIDServiceClientCopyEvent", "IOHIDEventGetFloatValue"}) {
        SCOPED_TRACE(name);
        system.missingFunctions = {name};
        {
            HIDTemperatureReader crippled(system, machine.processInfo());
            EXPECT_THAT(*crippled.readings(), IsEmpty());
            machine.clock()->wind(1s);
            EXPECT_THAT(*crippled.readings(), IsEmpty());
        }
        EXPECT_EQ(system.enumerations(), 0);
        EXPECT_EQ(system.librariesOutstanding(), 0);
        expectNothingOutstanding();
    }
}

TEST_F(HIDTemperatureReaderTest, FindsTheFunctionsOnceAndClosesTheLibraryInTheEnd) {
    {
        HIDTemperatureReader other(system, machine.processInfo());
        for (int i = 0; i < 5; ++i) {
            other.readings();
            machine.clock()->wind(1s);
        }
        EXPECT_EQ(system.enumerations(), 5);
        EXPECT_EQ(system.librariesOpened(), 1);
        EXPECT_EQ(system.functionsSought(), 6);
        EXPECT_EQ(system.librariesOutstanding(), 1);
    }
    EXPECT_EQ(system.librariesOutstanding(), 0);
}

TEST_F(HIDTemperatureReaderTest, OpensNothingBeforeItIsAsked) {
    EXPECT_EQ(system.librariesOpened(), 0);
}

TEST_F(HIDTemperatureReaderTest, IsEmptyWithoutAClientOrAListAndGivesTheClientBack) {
    system.clientFails = true;
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_EQ(system.enumerations(), 0);
    system.clientFails = false;
    system.listFails = true;
    EXPECT_THAT(readLater(), IsEmpty());
    expectNothingOutstanding();
    system.listFails = false;
    EXPECT_THAT(readLater(), ElementsAre(Reading{"pmu tdie1", 48.25})) << "it is asked anew";
}

TEST_F(HIDTemperatureReaderTest, AListThatFailsTakesThePlaceOfTheOneBefore) {
    read();
    system.listFails = true;
    EXPECT_THAT(readLater(), IsEmpty()) << "old temperatures do not pass for new ones";
}

TEST_F(HIDTemperatureReaderTest, TwoCallersWithinAQuarterOfASecondShareOneEnumeration) {
    const auto first = reader.readings();
    system.services[0].value = 60;
    machine.clock()->wind(250ms);
    EXPECT_EQ(reader.readings(), first);
    EXPECT_EQ(system.enumerations(), 1);
    machine.clock()->wind(1ms);
    EXPECT_THAT(read(), ElementsAre(Reading{"pmu tdie1", 60}));
    EXPECT_EQ(system.enumerations(), 2);
}

TEST_F(HIDTemperatureReaderTest, TheAgeOfAListCountsFromTheEndOfItsLoading) {
    system.onCall = [this] { machine.clock()->wind(100ms); };
    read();
    system.onCall = nullptr;
    machine.clock()->wind(250ms);
    read();
    EXPECT_EQ(system.enumerations(), 1);
}

TEST_F(HIDTemperatureReaderTest, ACallerThatMeetsALoadInProgressGetsTheListBeforeAtOnce) {
    int met = 0;
    std::vector<Reading> before;
    PatientThreads others;
    std::atomic<bool> isNested = false;
    system.onCall = [&] {
        if (isNested.exchange(true)) return;
        machine.clock()->wind(1s);
        // On another thread, so that a lock that is held shows as a wait and not as a deadlock. It
        // is asked no more after that: the lock is free when this returns.
        const auto answer = others.ask([this] { return read(); });
        ASSERT_TRUE(answer) << "it waits for the load";
        EXPECT_EQ(*answer, before);
        ++met;
        isNested = false;
    };
    before = {};
    const auto first = read();
    EXPECT_THAT(first, ElementsAre(Reading{"pmu tdie1", 48.25}));
    EXPECT_EQ(met, 7 + 9) << "library, functions; client, matching, list, sensor, releases";
    system.services[0].value = 60;
    before = first;
    EXPECT_THAT(readLater(), ElementsAre(Reading{"pmu tdie1", 60}));
    EXPECT_EQ(system.enumerations(), 2) << "those that met one began none";
    system.onCall = nullptr;  // the library is closed when this test's variables are gone
}

}  // namespace
}  // namespace vantor::hid_temperature_reader_test

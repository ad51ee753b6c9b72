#include "platform/darwin/smc_temperature_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <optional>
#include <string>
#include <vector>

#include "platform/simulated/simulated_system_controller.h"
#include "support/named_row.h"
#include "support/patient_threads.h"

namespace vantor::smc_temperature_reader_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Call = SimulatedSystemController::Call;
using Key = SimulatedSystemController::Key;

constexpr auto readBytes = SMCRecord::Command::readBytes;
constexpr auto readKeyInfo = SMCRecord::Command::readKeyInfo;

class SMCTemperatureReaderTest : public testing::Test {
  protected:
    SMCTemperatureReaderTest() { controller.isPresent = true; }
    ~SMCTemperatureReaderTest() override {
        EXPECT_EQ(controller.servicesOutstanding(), 0);
        EXPECT_EQ(controller.connectionsOutstanding(), 0);
        EXPECT_EQ(controller.improperCalls(), 0);
    }

    std::optional<double> hottest(const std::vector<std::string_view>& keys) {
        return reader.readHottest(keys);
    }

    /// The keys of the calls since the last time, in order.
    std::vector<std::string> askedKeys() {
        std::vector<std::string> names;
        for (const Call& call : controller.calls())
            names.push_back(call.key);
        controller.forgetCalls();
        return names;
    }

    SimulatedSystemController controller;
    SMCTemperatureReader reader{controller};
};

TEST_F(SMCTemperatureReaderTest, AsksWhatAKeyIsAndThenForItsValue) {
    controller.setFixed("Tp09", 44.5);
    EXPECT_EQ(hottest({"Tp09"}), 44.5);
    EXPECT_THAT(controller.calls(),
                ElementsAre(Call{"Tp09", readKeyInfo, 0}, Call{"Tp09", readBytes, 2}));
}

TEST_F(SMCTemperatureReaderTest, KnowsWhatAKeyIsFromThenOn) {
    controller.setFixed("Tp09", 44.5);
    controller.setFloat("Tp0T", 40);
    hottest({"Tp09", "Tp0T"});
    controller.forgetCalls();
    EXPECT_EQ(hottest({"Tp0T", "Tp09"}), 44.5);
    EXPECT_THAT(controller.calls(),
                ElementsAre(Call{"Tp0T", readBytes, 4}, Call{"Tp09", readBytes, 2}));
}

TEST_F(SMCTemperatureReaderTest, OneConnectionServesAllKeysOfACall) {
    for (const char* key : {"Tp09", "Tp0T", "Tp01"})
        controller.setFixed(key, 44.5);
    hottest({"Tp09", "Tp0T", "Tp01"});
    EXPECT_EQ(controller.connectionsOpened(), 1);
    hottest({"Tp09"});
    EXPECT_EQ(controller.connectionsOpened(), 2);
}

TEST_F(SMCTemperatureReaderTest, TheLargestValueCountsWhereverItIs) {
    controller.setFixed("Tp01", -5);
    controller.setFloat("Tp02", 51.25);
    controller.setFixed("Tp03", 50);
    EXPECT_EQ(hottest({"Tp01", "Tp02", "Tp03"}), 51.25);
    EXPECT_EQ(hottest({"Tp02", "Tp01", "Tp03"}), 51.25);
    EXPECT_EQ(hottest({"Tp01", "Tp03", "Tp02"}), 51.25);
    EXPECT_EQ(hottest({"Tp01"}), -5);
}

TEST_F(SMCTemperatureReaderTest, EveryKeyIsReadInOrder) {
    for (const char* key : {"Tp09", "Tp0T", "Tp01"})
        controller.setFixed(key, 44.5);
    const std::vector<std::string_view> keys{"Tp09", "Tp0T", "Tp01"};
    hottest(keys);
    controller.forgetCalls();
    hottest(keys);
    EXPECT_THAT(askedKeys(), ElementsAre("Tp09", "Tp0T", "Tp01"));
}

TEST_F(SMCTemperatureReaderTest, KeyOfThreeOrFiveCharactersIsAbsentWithoutACall) {
    controller.setFixed("TC0P", 44.5);
    for (const char* key : {"", "TC0", "TC0PX", "TC0P "}) {
        EXPECT_EQ(hottest({key}), std::nullopt) << key;
        EXPECT_THAT(controller.calls(), IsEmpty());
    }
    EXPECT_EQ(hottest({"TC0", "TC0P", "TC0PX"}), 44.5);
}

TEST_F(SMCTemperatureReaderTest, AnEmptyListOpensNothing) {
    int calls = 0;
    controller.onCall = [&calls] { ++calls; };
    EXPECT_EQ(hottest({}), std::nullopt);
    EXPECT_EQ(calls, 0);
}

TEST_F(SMCTemperatureReaderTest, WithoutAControllerNothingIsOpened) {
    controller.isPresent = false;
    controller.setFixed("TC0D", 44.5);
    EXPECT_EQ(hottest({"TC0D"}), std::nullopt);
    EXPECT_EQ(reader.readIntelCPU(), std::nullopt);
    EXPECT_EQ(controller.connectionsOpened(), 0);
}

TEST_F(SMCTemperatureReaderTest, AConnectionThatCannotBeOpenedGivesTheServiceBack) {
    controller.openFails = true;
    controller.setFixed("TC0D", 44.5);
    EXPECT_EQ(hottest({"TC0D"}), std::nullopt);
    EXPECT_EQ(reader.readIntelCPU(), std::nullopt);
    EXPECT_THAT(controller.calls(), IsEmpty());
    EXPECT_EQ(controller.servicesOutstanding(), 0);
}

struct FaultRow : NamedRow {
    void (*spoil)(Key&);
    bool isCached = false;  ///< what the key is has been learnt in spite of it
};

class SMCFault : public SMCTemperatureReaderTest, public testing::WithParamInterface<FaultRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, SMCFault,
    testing::Values(
        FaultRow{{"KeyInfoCallFails"}, [](Key& key) { key.keyInfoFault.error = 1; }},
        FaultRow{{"KeyInfoResult"}, [](Key& key) { key.keyInfoFault.result = 0x84; }},
        FaultRow{{"KeyInfoResultOne"}, [](Key& key) { key.keyInfoFault.result = 1; }},
        FaultRow{{"KeyInfoSize0"}, [](Key& key) { key.size = 0; }},
        FaultRow{{"KeyInfoSize33"}, [](Key& key) { key.size = 33; }},
        FaultRow{{"KeyInfoSizeNegative"}, [](Key& key) { key.size = 0xFFFFFFFF; }},
        FaultRow{{"KeyInfoLength47"}, [](Key& key) { key.keyInfoFault.length = 47; }},
        FaultRow{{"KeyInfoLength0"}, [](Key& key) { key.keyInfoFault.length = 0; }},
        FaultRow{{"KeyInfoLength81"}, [](Key& key) { key.keyInfoFault.length = 81; }},
        FaultRow{{"BytesCallFails"}, [](Key& key) { key.readBytesFault.error = -1; }, true},
        FaultRow{{"BytesResult"}, [](Key& key) { key.readBytesFault.result = 0x86; }, true},
        FaultRow{{"BytesLengthOneShort"}, [](Key& key) { key.readBytesFault.length = 49; }, true},
        FaultRow{{"BytesLengthOfTheHead"}, [](Key& key) { key.readBytesFault.length = 48; }, true},
        FaultRow{{"BytesLength47"}, [](Key& key) { key.readBytesFault.length = 47; }, true},
        FaultRow{{"BytesLength81"}, [](Key& key) { key.readBytesFault.length = 81; }, true}),
    rowName<FaultRow>);

TEST_P(SMCFault, MakesTheKeyAbsentAndStopsNoOther) {
    GetParam().spoil(controller.setFixed("Tp09", 90));
    controller.setFixed("Tp0T", 44.5);
    EXPECT_EQ(hottest({"Tp09"}), std::nullopt);
    EXPECT_EQ(hottest({"Tp09", "Tp0T"}), 44.5);
    controller.setFixed("Tp09", 90) =
        Key{*fourCC("sp78"), {std::byte{90}, std::byte{0}}, {}, {}, {}};
    controller.forgetCalls();
    EXPECT_EQ(hottest({"Tp09"}), 90) << "once it answers, it counts";
    EXPECT_THAT(controller.calls(), SizeIs(GetParam().isCached ? 1 : 2));
}

TEST_F(SMCTemperatureReaderTest, TheSizeOfAKeyMayBeAllThatThereIsRoomFor) {
    controller.setFixed("Tp09", 44.5).size = 32;
    EXPECT_EQ(hottest({"Tp09"}), 44.5);
    EXPECT_EQ(controller.calls().back(), (Call{"Tp09", readBytes, 32}));
    controller.keys["Tp09"].readBytesFault.length = 79;
    EXPECT_EQ(hottest({"Tp09"}), std::nullopt);
}

TEST_F(SMCTemperatureReaderTest, AResponseAsLongAsTheValueIsEnough) {
    controller.setFixed("Tp09", 44.5);
    controller.keys["Tp09"].readBytesFault.length = 50;
    EXPECT_EQ(hottest({"Tp09"}), 44.5);
    controller.keys["Tp09"].keyInfoFault.length = 48;
    EXPECT_EQ(SMCTemperatureReader(controller).readHottest(std::vector<std::string_view>{"Tp09"}),
              44.5);
}

TEST_F(SMCTemperatureReaderTest, ValuesTooShortForTheirTypeOrOfAnotherTypeAreAbsent) {
    controller.setFixed("Tp01", 44.5).size = 1;
    controller.setFloat("Tp02", 44.5F).size = 3;
    controller.setFloat("Tp03", 44.5F).type = *fourCC("ui32");
    controller.setFloat("Tp04", 150);
    controller.setFixed("Tp05", -20);
    EXPECT_EQ(hottest({"Tp01", "Tp02", "Tp03", "Tp04", "Tp05"}), std::nullopt);
}

TEST_F(SMCTemperatureReaderTest, UnknownKeysAreAskedForAnew) {
    EXPECT_EQ(hottest({"Tp09"}), std::nullopt);
    controller.setFixed("Tp09", 44.5);
    EXPECT_EQ(hottest({"Tp09"}), 44.5);
}

// The simulated controller counts every response that is not all zeros as improper.
TEST_F(SMCTemperatureReaderTest, TheResponseIsZeroedBeforeEveryCall) {
    for (const char* key : {"Tp09", "Tp0T", "Tp01", "Tp05"})
        controller.setFixed(key, 44.5);
    EXPECT_EQ(hottest({"Tp09", "Tp0T", "Tp01", "Tp05"}), 44.5);
    EXPECT_THAT(controller.calls(), SizeIs(8));
    EXPECT_EQ(controller.improperCalls(), 0);
}

TEST_F(SMCTemperatureReaderTest, TheDieComesFirstOnIntelAndEndsTheSearch) {
    for (const char* key : {"TC0F", "TCXC", "TC0E", "TC0D"}) {
        controller.setFixed("TC5C", 90);
        controller.setFixed("TC0P", 91);
        controller.setFixed(key, 40);
        EXPECT_EQ(reader.readIntelCPU(), 40);
        EXPECT_EQ(controller.calls().back().key, key);
        controller.setFixed(key, 39);  // the next one goes before it
    }
}

TEST_F(SMCTemperatureReaderTest, OnIntelKeysAreTriedInTheirOrder) {
    EXPECT_EQ(reader.readIntelCPU(), std::nullopt);
    EXPECT_THAT(askedKeys(),
                ElementsAre("TC0D", "TC0E", "TCXC", "TC0F", "TC0C", "TC1C", "TC2C", "TC3C", "TC4C",
                            "TC5C", "TC6C", "TC7C", "TC8C", "TC9C", "TC0P", "TC1P"));
    EXPECT_EQ(controller.connectionsOpened(), 1);
}

TEST_F(SMCTemperatureReaderTest, WithoutADieTheHottestCoreCountsOnIntel) {
    controller.setFixed("TC0C", 50);
    controller.setFixed("TC4C", 58.5);
    controller.setFixed("TC9C", 57);
    controller.setFixed("TC0P", 91);
    EXPECT_EQ(reader.readIntelCPU(), 58.5);
    EXPECT_EQ(askedKeys().back(), "TC9C");
    controller.setFixed("TC9C", 60);
    EXPECT_EQ(reader.readIntelCPU(), 60);
}

TEST_F(SMCTemperatureReaderTest, WithoutCoresWhatIsNearTheProcessorCountsOnIntel) {
    controller.setFixed("TC1P", 44);
    EXPECT_EQ(reader.readIntelCPU(), 44);
    controller.setFixed("TC0P", 42);
    EXPECT_EQ(reader.readIntelCPU(), 42) << "the first one, not the hotter one";
}

TEST_F(SMCTemperatureReaderTest, AnImplausibleDieMakesWayForTheCores) {
    controller.setFloat("TC0D", 150);
    controller.setFixed("TC0C", 50);
    EXPECT_EQ(reader.readIntelCPU(), 50);
}

TEST_F(SMCTemperatureReaderTest, NoLockIsHeldWhileTheControllerIsAsked) {
    controller.setFixed("Tp09", 44.5);
    controller.setFixed("Tg05", 40);
    controller.setFixed("Tp0T", 52);
    PatientThreads others;
    std::atomic<bool> isNested = false;
    int nested = 0;
    controller.onCall = [&] {
        if (isNested.exchange(true)) return;
        // On another thread, so that a lock that is held shows as a wait and not as a deadlock. It
        // is asked no more after that: the lock is free when this returns. And for another key, or
        // nothing were left to be found out of these.
        const auto answer = others.ask([&] { return hottest({"Tp0T"}); });
        ASSERT_TRUE(answer) << "it waits for the controller's answer to another";
        EXPECT_EQ(*answer, 52);
        ++nested;
        isNested = false;
    };
    EXPECT_EQ(hottest({"Tp09", "Tg05"}), 44.5);
    EXPECT_EQ(nested, 8) << "service, connection, two calls for each key, and both given back";
}

}  // namespace
}  // namespace vantor::smc_temperature_reader_test

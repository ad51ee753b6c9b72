#include "probes/power_reader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>

#include "platform/simulated/simulated_machine.h"
#include "support/named_row.h"

namespace vantor::power_reader_test {
namespace {

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();

class PowerReaderTest : public testing::Test {
  protected:
    /// Nothing of the platform's may be left with the reader.
    PowerReadResult read() {
        PowerReadResult result = PowerReader(machine).read();
        EXPECT_EQ(power.infosOutstanding(), 0);
        return result;
    }

    /// "failure", "none", or the name of the record.
    std::string answer() {
        const PowerReadResult result = read();
        if (!result.isUpdate()) return "failure";
        return result.stats() ? result.stats()->name : "none";
    }

    PropertyDictionary& add(const char* type, const char* name) {
        PropertyDictionary& description = power.addBattery(50, 60);
        setProperty(description, "Type", type);
        setProperty(description, "Name", name);
        return description;
    }

    std::shared_ptr<SimulatedMachine> machine = std::make_shared<SimulatedMachine>();
    SimulatedPowerSources& power = machine->powerSources();
};

TEST_F(PowerReaderTest, ADesktopWithoutPowerSourcesIsAnUpdateWithoutARecord) {
    EXPECT_EQ(read(), PowerReadResult::update(std::nullopt));
}

TEST_F(PowerReaderTest, WithoutInformationTheReadFails) {
    power.infoFails = true;
    EXPECT_EQ(answer(), "failure");
}

TEST_F(PowerReaderTest, WithoutAListTheReadFails) {
    power.listIsMissing = true;
    EXPECT_EQ(answer(), "failure");
}

TEST_F(PowerReaderTest, GivesEachFieldAsThePlatformHasIt) {
    setProperty(power.addBattery(80, 200), "Cycle Count", 321);
    EXPECT_EQ(read(), PowerReadResult::update(
                          PowerStats{"InternalBattery-0", 0.8, false, false, 200, 321}));
}

TEST_F(PowerReaderTest, KeepsNothingBetweenReads) {
    PowerReader reader(machine);
    power.addBattery(80, 200);
    ASSERT_TRUE(reader.read().stats());
    power.sources.clear();
    EXPECT_EQ(reader.read(), PowerReadResult::update(std::nullopt));
}

TEST_F(PowerReaderTest, AnEntryThatCannotBeFetchedFailsAtOnce) {
    add("UPS", "UPS");
    power.sources.emplace_back().isMissing = true;
    add("InternalBattery", "Battery");
    EXPECT_EQ(answer(), "failure");
}

TEST_F(PowerReaderTest, AnEntryBehindAnInternalBatteryIsNotFetched) {
    add("InternalBattery", "Battery");
    power.sources.emplace_back().isMissing = true;
    EXPECT_EQ(answer(), "Battery");
}

TEST_F(PowerReaderTest, AnUnreadableUPSBeforeAReadableBatteryDoesNotMatter) {
    power.sources.emplace_back();
    add("InternalBattery", "Battery");
    EXPECT_EQ(answer(), "Battery");
}

TEST_F(PowerReaderTest, AReadableUPSBeforeABatteryDoesNotMatter) {
    add("UPS", "UPS");
    add("InternalBattery", "Battery");
    EXPECT_EQ(answer(), "Battery");
}

TEST_F(PowerReaderTest, AReadableUPSAloneIsTheRecord) {
    add("UPS", "UPS");
    EXPECT_EQ(answer(), "UPS");
}

TEST_F(PowerReaderTest, TheFirstOfSeveralUPSesIsTheRecord) {
    add("UPS", "First");
    add("Generator", "Second");
    EXPECT_EQ(answer(), "First");
}

TEST_F(PowerReaderTest, AReadableUPSAndAnUnreadableSourceFail) {
    add("UPS", "UPS");
    power.sources.emplace_back();
    EXPECT_EQ(answer(), "failure");
}

TEST_F(PowerReaderTest, AnUnreadableSourceBeforeAReadableUPSFails) {
    power.sources.emplace_back();
    add("UPS", "UPS");
    EXPECT_EQ(answer(), "failure");
}

TEST_F(PowerReaderTest, ABatteryWithoutARecordAndAReadableUPSFail) {
    setProperty(add("InternalBattery", "Battery"), "Max Capacity", 0);
    add("UPS", "UPS");
    EXPECT_EQ(answer(), "failure");
}

TEST_F(PowerReaderTest, ABatteryWithoutARecordBeforeOneWithARecordDoesNotMatter) {
    setProperty(add("InternalBattery", "First"), "Max Capacity", 0);
    add("InternalBattery", "Second");
    EXPECT_EQ(answer(), "Second");
}

TEST_F(PowerReaderTest, ASourceWithoutATypeFails) {
    removeProperty(add("UPS", "UPS"), "Type");
    EXPECT_EQ(answer(), "failure");
}

TEST_F(PowerReaderTest, ATypeThatIsNoTextFails) {
    setProperty(add("UPS", "UPS"), "Type", 3);
    EXPECT_EQ(answer(), "failure");
}

using Change = std::function<void(PropertyDictionary&)>;

Change set(const char* key, const PropertyValue& value) {
    return [=](PropertyDictionary& d) { setProperty(d, key, value); };
}
Change without(const char* key) {
    return [=](PropertyDictionary& d) { removeProperty(d, key); };
}
Change operator+(const Change& a, const Change& b) {
    return [=](PropertyDictionary& d) {
        a(d);
        b(d);
    };
}

struct RejectedRow : NamedRow {
    Change change;
};

class RejectedDescription : public PowerReaderTest,
                            public testing::WithParamInterface<RejectedRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, RejectedDescription,
    testing::Values(RejectedRow{{"Current50OfMaximum0"}, set("Max Capacity", 0)},
                    RejectedRow{{"NegativeMaximum"}, set("Max Capacity", -5)},
                    RejectedRow{{"NoMaximum"}, without("Max Capacity")},
                    RejectedRow{{"MaximumIsText"}, set("Max Capacity", "100")},
                    RejectedRow{{"MaximumIsBroken"}, set("Max Capacity", 99.5)},
                    RejectedRow{{"MaximumIsABoolean"}, set("Max Capacity", true)},
                    RejectedRow{{"NegativeCurrent"}, set("Current Capacity", -1)},
                    RejectedRow{{"NoCurrent"}, without("Current Capacity")},
                    RejectedRow{{"CurrentIsText"}, set("Current Capacity", "50")},
                    RejectedRow{{"NoState"}, without("Power Source State")},
                    RejectedRow{{"StateIsABoolean"}, set("Power Source State", true)}),
    rowName<RejectedRow>);

TEST_P(RejectedDescription, GivesNoRecordAndFailsWhenItIsTheOnlyOne) {
    GetParam().change(add("InternalBattery", "Battery"));
    EXPECT_EQ(answer(), "failure");
}

struct RecordRow : NamedRow {
    Change change;
    PowerStats record;
};

class AcceptedDescription : public PowerReaderTest,
                            public testing::WithParamInterface<RecordRow> {};

const auto onAC = set("Power Source State", "AC Power");
const auto charging = set("Is Charging", true);
constexpr auto unknown = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    Rows, AcceptedDescription,
    testing::Values(
        RecordRow{{"OnBattery"}, set("x", 1), {"B", 0.5, false, false, 60, unknown}},
        RecordRow{{"Current120Of100"},
                  set("Current Capacity", 120),
                  {"B", 1.0, false, false, 60, unknown}},
        RecordRow{{"Empty"}, set("Current Capacity", 0), {"B", 0.0, false, false, 60, unknown}},
        RecordRow{{"WholeFloats"},
                  set("Current Capacity", 25.0) + set("Max Capacity", 50.0),
                  {"B", 0.5, false, false, 60, unknown}},
        RecordRow{{"LargestNumbers"},
                  set("Current Capacity", most) + set("Max Capacity", most),
                  {"B", 1.0, false, false, 60, unknown}},
        RecordRow{{"OnACNotCharging"},
                  onAC + set("Time to Empty", 300) + set("Time to Full Charge", 30),
                  {"B", 0.5, false, true, unknown, unknown}},
        RecordRow{{"OnACCharging"},
                  onAC + charging + set("Time to Full Charge", 30),
                  {"B", 0.5, true, true, 30, unknown}},
        RecordRow{{"OnACChargingStillCalculating"},
                  onAC + charging,
                  {"B", 0.5, true, true, unknown, unknown}},
        RecordRow{{"ChargingWithoutAC"},
                  charging + set("Time to Full Charge", 30),
                  {"B", 0.5, true, false, 30, unknown}},
        RecordRow{{"OnBatteryStillCalculating"},
                  set("Time to Empty", -1),
                  {"B", 0.5, false, false, unknown, unknown}},
        RecordRow{
            {"OnBatteryNoMinutes"}, set("Time to Empty", 0), {"B", 0.5, false, false, 0, unknown}},
        RecordRow{{"NoTime"}, without("Time to Empty"), {"B", 0.5, false, false, unknown, unknown}},
        RecordRow{
            {"TimeIsText"}, set("Time to Empty", "60"), {"B", 0.5, false, false, unknown, unknown}},
        RecordRow{
            {"NoChargingFlag"}, without("Is Charging"), {"B", 0.5, false, false, 60, unknown}},
        RecordRow{{"ChargingFlagIsANumber"},
                  set("Is Charging", 1),
                  {"B", 0.5, false, false, 60, unknown}},
        RecordRow{{"OtherState"},
                  set("Power Source State", "Off Line"),
                  {"B", 0.5, false, false, 60, unknown}},
        RecordRow{{"Cycles"}, set("Cycle Count", 12), {"B", 0.5, false, false, 60, 12}},
        RecordRow{{"NoCyclesYet"}, set("Cycle Count", 0), {"B", 0.5, false, false, 60, 0}},
        RecordRow{
            {"NegativeCycles"}, set("Cycle Count", -1), {"B", 0.5, false, false, 60, unknown}},
        RecordRow{
            {"CyclesAreText"}, set("Cycle Count", "12"), {"B", 0.5, false, false, 60, unknown}},
        RecordRow{{"NoName"}, without("Name"), {"Battery", 0.5, false, false, 60, unknown}},
        RecordRow{{"NameIsANumber"}, set("Name", 7), {"Battery", 0.5, false, false, 60, unknown}},
        RecordRow{{"NameIsNotUTF8"},
                  set("Name", "B\xFF"),
                  {"B\xEF\xBF\xBD", 0.5, false, false, 60, unknown}}),
    rowName<RecordRow>);

TEST_P(AcceptedDescription, GivesTheRecord) {
    GetParam().change(add("InternalBattery", "B"));
    EXPECT_EQ(read(), PowerReadResult::update(GetParam().record));
}

TEST(PowerReader, ReadsTheSimulatedMachines) {
    EXPECT_EQ(PowerReader(SimulatedMachine::laptop()).read(),
              PowerReadResult::update(
                  PowerStats{"InternalBattery-0", 0.8, false, false, 200, std::nullopt}));
    EXPECT_EQ(PowerReader(SimulatedMachine::desktop()).read(),
              PowerReadResult::update(std::nullopt));
    EXPECT_EQ(PowerReader(SimulatedMachine::broken()).read(), PowerReadResult::failure());
}

}  // namespace
}  // namespace vantor::power_reader_test

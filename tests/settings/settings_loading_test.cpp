#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <ostream>
#include <string>

#include "settings/app_settings.h"
#include "settings/settings_fakes.h"

namespace vantor::settings_loading_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Value = DefaultsStore::Value;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

Value whole(std::int64_t number) {
    return number;
}
Value text(const char* characters) {
    return std::string(characters);
}

class SettingsLoading : public testing::Test {
  protected:
    AppSettings load() { return {defaults, application}; }

    std::shared_ptr<MemoryDefaults> defaults = std::make_shared<MemoryDefaults>();
    std::shared_ptr<RecordedAppearance> application = std::make_shared<RecordedAppearance>();
};

TEST_F(SettingsLoading, FromAnEmptyStoreGivesTheDefaults) {
    const AppSettings settings = load();
    EXPECT_EQ(settings.refreshInterval(), 0.5);
    EXPECT_EQ(settings.historyLength(), 90);
    EXPECT_TRUE(settings.showMenuBar());
    EXPECT_FALSE(settings.includePointToPointInterfaces());
    EXPECT_EQ(settings.appearance(), Appearance::dark);
}

TEST_F(SettingsLoading, GivesWhatWasStored) {
    defaults->values = {{"refreshInterval", 5.0},
                        {"historyLength", whole(120)},
                        {"showMenuBar", false},
                        {"includePointToPointInterfaces", true},
                        {"appearance", text("light")}};
    const AppSettings settings = load();
    EXPECT_EQ(settings.refreshInterval(), 5.0);
    EXPECT_EQ(settings.historyLength(), 120);
    EXPECT_FALSE(settings.showMenuBar());
    EXPECT_TRUE(settings.includePointToPointInterfaces());
    EXPECT_EQ(settings.appearance(), Appearance::light);
}

TEST_F(SettingsLoading, AsksForEachKeyOnceInOrder) {
    load();
    EXPECT_THAT(defaults->reads, ElementsAre("refreshInterval", "historyLength", "showMenuBar",
                                             "includePointToPointInterfaces", "appearance"));
}

TEST_F(SettingsLoading, WritesNothingEvenWhereItRepairs) {
    defaults->values = {{"refreshInterval", 3.5}, {"historyLength", whole(5)}};
    load();
    EXPECT_THAT(defaults->writes, IsEmpty());
    EXPECT_EQ(defaults->values.at("historyLength"), whole(5));
}

TEST_F(SettingsLoading, AppliesTheAppearanceOnce) {
    load();
    EXPECT_THAT(application->calls, ElementsAre("dark"));
    application->calls.clear();
    defaults->values["appearance"] = text("system");
    load();
    EXPECT_THAT(application->calls, ElementsAre("system"));
    application->calls.clear();
    defaults->values["appearance"] = text("light");
    load();
    EXPECT_THAT(application->calls, ElementsAre("light"));
}

template <class T>
struct Row {
    const char* name;
    Value stored;
    T loaded;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

const auto rowName = [](const auto& row) { return std::string(row.param.name); };

template <class T>
class StoredValue : public testing::TestWithParam<Row<T>> {
  protected:
    AppSettings load(const char* key) {
        const auto defaults = std::make_shared<MemoryDefaults>();
        defaults->values.insert_or_assign(key, this->GetParam().stored);
        return {defaults, std::make_shared<RecordedAppearance>()};
    }
};

using StoredRefreshInterval = StoredValue<double>;
using Interval = Row<double>;
INSTANTIATE_TEST_SUITE_P(
    Rows, StoredRefreshInterval,
    testing::Values(Interval{"Shortest", 0.5, 0.5}, Interval{"Longest", 10.0, 10.0},
                    Interval{"WholeNumber", whole(2), 2.0}, Interval{"TieOfHalfAndOne", 0.75, 0.5},
                    Interval{"TieOfOneAndTwo", 1.5, 1.0}, Interval{"TieOfTwoAndFive", 3.5, 2.0},
                    Interval{"TieOfFiveAndTen", 7.5, 5.0}, Interval{"PastATie", 0.7501, 1.0},
                    Interval{"BelowAll", 0.1, 0.5}, Interval{"AboveAll", 100.0, 10.0},
                    Interval{"Zero", 0.0, 0.5}, Interval{"Negative", -3.0, 0.5},
                    Interval{"NotANumber", nan, 0.5}, Interval{"Infinite", infinity, 0.5},
                    Interval{"NegativeInfinite", -infinity, 0.5}, Interval{"Text", text("2"), 0.5},
                    Interval{"Flag", true, 0.5}),
    rowName);

TEST_P(StoredRefreshInterval, BecomesTheNearestOnOffer) {
    EXPECT_EQ(load("refreshInterval").refreshInterval(), GetParam().loaded);
}

using StoredHistoryLength = StoredValue<std::int64_t>;
using Length = Row<std::int64_t>;
INSTANTIATE_TEST_SUITE_P(
    Rows, StoredHistoryLength,
    testing::Values(Length{"Inside", whole(120), 120}, Length{"Shortest", whole(30), 30},
                    Length{"Longest", whole(300), 300}, Length{"BelowTheShortest", whole(29), 30},
                    Length{"Tiny", whole(5), 30}, Length{"PastTheLongest", whole(301), 300},
                    Length{"Large", whole(1000), 300}, Length{"Negative", whole(-1), 30},
                    Length{"Smallest", whole(INT64_MIN), 30},
                    Length{"Largest", whole(INT64_MAX), 300}, Length{"WholeAsFloating", 120.0, 120},
                    Length{"Fraction", 120.5, 90}, Length{"TooLargeToBeACount", 1e300, 90},
                    Length{"NotANumber", nan, 90}, Length{"Text", text("120"), 90},
                    Length{"Flag", true, 90}),
    rowName);

TEST_P(StoredHistoryLength, IsHeldWithinItsBounds) {
    EXPECT_EQ(load("historyLength").historyLength(), GetParam().loaded);
}

using StoredMenuBar = StoredValue<bool>;
using Flag = Row<bool>;
INSTANTIATE_TEST_SUITE_P(Rows, StoredMenuBar,
                         testing::Values(Flag{"Shown", true, true}, Flag{"Hidden", false, false},
                                         Flag{"One", whole(1), true}, Flag{"Zero", whole(0), false},
                                         Flag{"OtherNumber", whole(2), true},
                                         Flag{"MinusOne", whole(-1), true},
                                         Flag{"Floating", 0.0, true},
                                         Flag{"Text", text("false"), true}),
                         rowName);

TEST_P(StoredMenuBar, IsShownUnlessAFlagSaysOtherwise) {
    EXPECT_EQ(load("showMenuBar").showMenuBar(), GetParam().loaded);
}

using StoredPointToPoint = StoredValue<bool>;
INSTANTIATE_TEST_SUITE_P(Rows, StoredPointToPoint,
                         testing::Values(Flag{"Included", true, true},
                                         Flag{"LeftOut", false, false}, Flag{"One", whole(1), true},
                                         Flag{"OtherNumber", whole(2), false},
                                         Flag{"Text", text("true"), false}),
                         rowName);

TEST_P(StoredPointToPoint, AreHiddenUnlessAFlagSaysOtherwise) {
    EXPECT_EQ(load("includePointToPointInterfaces").includePointToPointInterfaces(),
              GetParam().loaded);
}

using StoredAppearance = StoredValue<Appearance>;
using Look = Row<Appearance>;
INSTANTIATE_TEST_SUITE_P(Rows, StoredAppearance,
                         testing::Values(Look{"System", text("system"), Appearance::system},
                                         Look{"Dark", text("dark"), Appearance::dark},
                                         Look{"Light", text("light"), Appearance::light},
                                         Look{"Capitalised", text("Light"), Appearance::dark},
                                         Look{"Empty", text(""), Appearance::dark},
                                         Look{"Number", whole(0), Appearance::dark},
                                         Look{"Flag", true, Appearance::dark}),
                         rowName);

TEST_P(StoredAppearance, IsDarkUnlessItIsExactlyAnother) {
    EXPECT_EQ(load("appearance").appearance(), GetParam().loaded);
}

}  // namespace
}  // namespace vantor::settings_loading_test

#include "settings/app_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "settings/settings_fakes.h"

namespace vantor::app_settings_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using Value = DefaultsStore::Value;

class AppSettingsTest : public testing::Test {
  protected:
    /// What an observer of a stream saw: the coming value, the one held, and the writes so far.
    template <class T>
    struct Told {
        T coming, held;
        std::size_t writes;
        bool operator==(const Told&) const = default;
    };

    std::shared_ptr<MemoryDefaults> defaults = std::make_shared<MemoryDefaults>();
    std::shared_ptr<RecordedAppearance> application = std::make_shared<RecordedAppearance>();
    AppSettings settings{defaults, application};
};

TEST_F(AppSettingsTest, PublishesTheRefreshIntervalBeforeItChangesAndThenStoresADouble) {
    std::vector<Told<double>> told;
    const auto subscription = settings.refreshIntervalStream().observe([&](double next) {
        told.push_back({next, settings.refreshInterval(), defaults->writes.size()});
    });
    settings.setRefreshInterval(2);
    EXPECT_THAT(told, ElementsAre(Told<double>{2, 0.5, 0}));
    EXPECT_EQ(settings.refreshInterval(), 2);
    EXPECT_THAT(defaults->writes, ElementsAre(Pair("refreshInterval", Value{2.0})));
}

TEST_F(AppSettingsTest, PublishesTheHistoryLengthBeforeItChangesAndThenStoresAnInteger) {
    std::vector<Told<std::int64_t>> told;
    const auto subscription = settings.historyLengthStream().observe([&](std::int64_t next) {
        told.push_back({next, settings.historyLength(), defaults->writes.size()});
    });
    settings.setHistoryLength(120);
    EXPECT_THAT(told, ElementsAre(Told<std::int64_t>{120, 90, 0}));
    EXPECT_THAT(defaults->writes, ElementsAre(Pair("historyLength", Value{std::int64_t{120}})));
}

TEST_F(AppSettingsTest, PublishesTheMenuBarBeforeItChangesAndThenStoresAFlag) {
    std::vector<Told<bool>> told;
    const auto subscription = settings.showMenuBarStream().observe([&](bool next) {
        told.push_back({next, settings.showMenuBar(), defaults->writes.size()});
    });
    settings.setShowMenuBar(false);
    EXPECT_THAT(told, ElementsAre(Told<bool>{false, true, 0}));
    EXPECT_THAT(defaults->writes, ElementsAre(Pair("showMenuBar", Value{false})));
}

TEST_F(AppSettingsTest, PublishesPointToPointLinksBeforeTheyChangeAndThenStoresAFlag) {
    std::vector<Told<bool>> told;
    const auto subscription = settings.includePointToPointInterfacesStream().observe([&](bool
                                                                                             next) {
        told.push_back({next, settings.includePointToPointInterfaces(), defaults->writes.size()});
    });
    settings.setIncludePointToPointInterfaces(true);
    EXPECT_THAT(told, ElementsAre(Told<bool>{true, false, 0}));
    EXPECT_THAT(defaults->writes, ElementsAre(Pair("includePointToPointInterfaces", Value{true})));
}

TEST_F(AppSettingsTest, PublishesTheAppearanceBeforeItChangesAndThenStoresItsText) {
    std::vector<Told<Appearance>> told;
    const auto subscription = settings.appearanceStream().observe([&](Appearance next) {
        told.push_back({next, settings.appearance(), defaults->writes.size()});
    });
    settings.setAppearance(Appearance::light);
    EXPECT_THAT(told, ElementsAre(Told<Appearance>{Appearance::light, Appearance::dark, 0}));
    EXPECT_THAT(defaults->writes, ElementsAre(Pair("appearance", Value{std::string("light")})));
}

/// Looks at the store each time the application changes its look.
class WatchfulAppearance : public ApplicationAppearance {
  public:
    explicit WatchfulAppearance(std::shared_ptr<MemoryDefaults> defaults)
        : defaults_(std::move(defaults)) {}

    std::vector<std::size_t> writesSeen;

    void followSystem() override { look(); }
    void forceDark() override { look(); }
    void forceLight() override { look(); }

  private:
    void look() { writesSeen.push_back(defaults_->writes.size()); }

    std::shared_ptr<MemoryDefaults> defaults_;
};

TEST_F(AppSettingsTest, AppliesTheAppearanceAfterStoringIt) {
    const auto store = std::make_shared<MemoryDefaults>();
    const auto watchful = std::make_shared<WatchfulAppearance>(store);
    AppSettings watched(store, watchful);
    watched.setAppearance(Appearance::system);
    EXPECT_THAT(watchful->writesSeen, ElementsAre(0, 1));
}

TEST_F(AppSettingsTest, AppliesTheAppearanceAfterEachSettingOfItEvenToTheSame) {
    application->calls.clear();
    for (const auto appearance :
         {Appearance::system, Appearance::light, Appearance::dark, Appearance::dark}) {
        settings.setAppearance(appearance);
    }
    EXPECT_THAT(application->calls, ElementsAre("system", "light", "dark", "dark"));
}

TEST_F(AppSettingsTest, AppliesNoAppearanceForTheOtherSettings) {
    application->calls.clear();
    settings.setRefreshInterval(5);
    settings.setHistoryLength(60);
    settings.setShowMenuBar(false);
    settings.setIncludePointToPointInterfaces(true);
    EXPECT_THAT(application->calls, IsEmpty());
}

TEST_F(AppSettingsTest, StoresEveryChangeAtOnceAlsoToAnEqualValue) {
    settings.setHistoryLength(90);
    settings.setHistoryLength(90);
    EXPECT_EQ(defaults->writes.size(), 2U);
}

TEST_F(AppSettingsTest, StoresAnOutlandishValueAsItIsAndRepairsItAtTheNextLoad) {
    settings.setHistoryLength(1000);
    settings.setRefreshInterval(3.5);
    EXPECT_EQ(settings.historyLength(), 1000);
    EXPECT_EQ(settings.refreshInterval(), 3.5);
    EXPECT_EQ(defaults->values.at("historyLength"), Value{std::int64_t{1000}});
    EXPECT_EQ(defaults->values.at("refreshInterval"), Value{3.5});
    const AppSettings next(defaults, application);
    EXPECT_EQ(next.historyLength(), 300);
    EXPECT_EQ(next.refreshInterval(), 2.0);
}

TEST_F(AppSettingsTest, StoresTheValueHeldAfterItsObserversWereTold) {
    const auto subscription = settings.historyLengthStream().observe([this](std::int64_t next) {
        if (next == 100) settings.setHistoryLength(200);
    });
    settings.setHistoryLength(100);
    EXPECT_EQ(settings.historyLength(), 100);
    EXPECT_EQ(defaults->values.at("historyLength"), Value{std::int64_t{100}});
}

TEST_F(AppSettingsTest, IsFoundAgainByTheNextRun) {
    settings.setRefreshInterval(10);
    settings.setHistoryLength(240);
    settings.setShowMenuBar(false);
    settings.setIncludePointToPointInterfaces(true);
    settings.setAppearance(Appearance::system);
    const AppSettings next(defaults, application);
    EXPECT_EQ(next.refreshInterval(), 10);
    EXPECT_EQ(next.historyLength(), 240);
    EXPECT_FALSE(next.showMenuBar());
    EXPECT_TRUE(next.includePointToPointInterfaces());
    EXPECT_EQ(next.appearance(), Appearance::system);
}

TEST(RefreshIntervals, OnOfferAreTheFiveFixedOnes) {
    EXPECT_THAT(AppSettings::refreshIntervals, ElementsAre(0.5, 1, 2, 5, 10));
}

TEST(HistoryLength, IsClampedToWhatAHistoryHolds) {
    EXPECT_EQ(AppSettings::clampHistoryLength(29), 30);
    EXPECT_EQ(AppSettings::clampHistoryLength(30), 30);
    EXPECT_EQ(AppSettings::clampHistoryLength(300), 300);
    EXPECT_EQ(AppSettings::clampHistoryLength(301), 300);
}

}  // namespace
}  // namespace vantor::app_settings_test

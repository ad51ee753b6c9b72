#include <gtest/gtest.h>

#include "app/store_fixture.h"
#include "settings/app_settings.h"

/// The preferences over the file that they are kept in.
namespace vantor::stored_settings_test {
namespace {

class NoAppearance : public ApplicationAppearance {
  public:
    void followSystem() override {}
    void forceDark() override {}
    void forceLight() override {}
};

class StoredSettingsTest : public StoreTest {
  protected:
    /// As the first run does.
    AppSettings load() {
        return AppSettings(std::make_shared<QtDefaultsStore>(file),
                           std::make_shared<NoAppearance>());
    }
    /// As a later run does, in which nothing is remembered but what the file says.
    AppSettings loadAgain() {
        return AppSettings(std::make_shared<QtDefaultsStore>(copy()),
                           std::make_shared<NoAppearance>());
    }
    static void expectDefaults(const AppSettings& settings) {
        EXPECT_DOUBLE_EQ(settings.refreshInterval(), 0.5);
        EXPECT_EQ(settings.historyLength(), 90);
        EXPECT_TRUE(settings.showMenuBar());
        EXPECT_FALSE(settings.includePointToPointInterfaces());
        EXPECT_EQ(settings.appearance(), Appearance::dark);
    }
};

TEST_F(StoredSettingsTest, WithoutAFileThereAreTheDefaults) {
    expectDefaults(load());
    EXPECT_FALSE(QFileInfo::exists(file)) << "loading writes nothing";
}

TEST_F(StoredSettingsTest, EverythingSetIsThereInTheNextRun) {
    {
        AppSettings settings = load();
        settings.setRefreshInterval(2);
        settings.setHistoryLength(200);
        settings.setShowMenuBar(false);
        settings.setIncludePointToPointInterfaces(true);
        settings.setAppearance(Appearance::system);
    }
    const AppSettings settings = loadAgain();
    EXPECT_DOUBLE_EQ(settings.refreshInterval(), 2);
    EXPECT_EQ(settings.historyLength(), 200);
    EXPECT_FALSE(settings.showMenuBar());
    EXPECT_TRUE(settings.includePointToPointInterfaces());
    EXPECT_EQ(settings.appearance(), Appearance::system);
}

TEST_F(StoredSettingsTest, EveryIntervalOnOfferSurvives) {
    for (const double interval : AppSettings::refreshIntervals) {
        load().setRefreshInterval(interval);
        EXPECT_DOUBLE_EQ(loadAgain().refreshInterval(), interval);
    }
}

TEST_F(StoredSettingsTest, ValuesOutOfRangeAreStoredAndRepairedByTheNextRun) {
    load().setHistoryLength(1000);
    EXPECT_EQ(stored("historyLength"), Value{std::int64_t{1000}});
    EXPECT_EQ(loadAgain().historyLength(), 300);
    load().setRefreshInterval(3.5);
    EXPECT_DOUBLE_EQ(loadAgain().refreshInterval(), 2);
}

TEST_F(StoredSettingsTest, ValuesOfAnotherTypeFallBack) {
    write(
        "refreshInterval=fast\nhistoryLength=many\nshowMenuBar=perhaps\n"
        "includePointToPointInterfaces=3\nappearance=Light\n");
    expectDefaults(load());
}

TEST_F(StoredSettingsTest, NumbersThatAreNoneFallBack) {
    write("refreshInterval=nan\nhistoryLength=inf\n");
    expectDefaults(loadAgain());
    write("refreshInterval=-inf\nhistoryLength=1.5\n");
    expectDefaults(loadAgain());
}

TEST_F(StoredSettingsTest, ADamagedFileGivesTheDefaultsAndNewOnesAreKept) {
    write("[General\nrefreshInterval");
    {
        AppSettings settings = load();
        expectDefaults(settings);
        settings.setAppearance(Appearance::light);
    }
    EXPECT_EQ(loadAgain().appearance(), Appearance::light);
    EXPECT_EQ(contentsOf(file + QStringLiteral(".damaged-1")), "[General\nrefreshInterval");
}

TEST_F(StoredSettingsTest, WithoutAPlaceToKeepThemChangesHoldForTheRun) {
    ASSERT_TRUE(QDir().mkpath(file));
    AppSettings settings = load();
    settings.setRefreshInterval(10);
    EXPECT_DOUBLE_EQ(settings.refreshInterval(), 10);
}

}  // namespace
}  // namespace vantor::stored_settings_test

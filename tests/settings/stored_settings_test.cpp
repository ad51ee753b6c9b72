#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/app_settings.h"
#include "settings/defaults_run.h"
#include "settings/settings_fakes.h"

/// The preferences over the file that they are kept in.
namespace vantor::stored_settings_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class StoredSettings : public DefaultsOnDisk {
  protected:
    std::shared_ptr<RecordedAppearance> application = std::make_shared<RecordedAppearance>();

    AppSettings settingsOf(const DefaultsRun& program) const {
        return AppSettings(program.shared(), application);
    }
    AppSettings load() const { return settingsOf(run()); }
    void change(const std::function<void(AppSettings&)>& change) const {
        const DefaultsRun program = run();
        AppSettings settings = settingsOf(program);
        change(settings);
        program.goOn();
    }
    static void expectDefaults(const AppSettings& settings) {
        EXPECT_DOUBLE_EQ(settings.refreshInterval(), 0.5);
        EXPECT_EQ(settings.historyLength(), 90);
        EXPECT_TRUE(settings.showMenuBar());
        EXPECT_FALSE(settings.includePointToPointInterfaces());
        EXPECT_EQ(settings.appearance(), Appearance::dark);
    }
};

TEST_F(StoredSettings, WithoutAFileThereAreTheDefaults) {
    expectDefaults(load());
    EXPECT_FALSE(std::filesystem::exists(file)) << "loading writes nothing";
}

TEST_F(StoredSettings, EverythingSetIsThereInTheNextRun) {
    change([](AppSettings& settings) {
        settings.setRefreshInterval(2);
        settings.setHistoryLength(200);
        settings.setShowMenuBar(false);
        settings.setIncludePointToPointInterfaces(true);
        settings.setAppearance(Appearance::system);
    });
    const AppSettings settings = load();
    EXPECT_DOUBLE_EQ(settings.refreshInterval(), 2);
    EXPECT_EQ(settings.historyLength(), 200);
    EXPECT_FALSE(settings.showMenuBar());
    EXPECT_TRUE(settings.includePointToPointInterfaces());
    EXPECT_EQ(settings.appearance(), Appearance::system);
}

TEST_F(StoredSettings, EveryIntervalOnOfferSurvives) {
    for (const double interval : AppSettings::refreshIntervals) {
        change([&](AppSettings& settings) { settings.setRefreshInterval(interval); });
        EXPECT_DOUBLE_EQ(load().refreshInterval(), interval);
    }
}

TEST_F(StoredSettings, ValuesOutOfRangeAreStoredAndRepairedByTheNextRun) {
    change([](AppSettings& settings) { settings.setHistoryLength(1000); });
    EXPECT_EQ(stored("historyLength"), Value{std::int64_t{1000}});
    EXPECT_EQ(load().historyLength(), 300);
    change([](AppSettings& settings) { settings.setRefreshInterval(3.5); });
    EXPECT_DOUBLE_EQ(load().refreshInterval(), 2);
}

TEST_F(StoredSettings, ValuesOfAnotherTypeFallBack) {
    write(
        "refreshInterval=fast\nhistoryLength=many\nshowMenuBar=perhaps\n"
        "includePointToPointInterfaces=3\nappearance=Light\n");
    expectDefaults(load());
}

TEST_F(StoredSettings, NumbersThatAreNoneFallBack) {
    write("refreshInterval=nan\nhistoryLength=inf\n");
    expectDefaults(load());
    write("refreshInterval=-inf\nhistoryLength=1.5\n");
    expectDefaults(load());
}

TEST_F(StoredSettings, ADamagedFileGivesTheDefaultsAndNewOnesAreKept) {
    write("[General\nrefreshInterval");
    expectDefaults(load());
    change([](AppSettings& settings) { settings.setAppearance(Appearance::light); });
    EXPECT_EQ(load().appearance(), Appearance::light);
    EXPECT_EQ(contentOf(aside(1)), "[General\nrefreshInterval");
}

TEST_F(StoredSettings, TwoProgramsKeepEachOthersChanges) {
    const DefaultsRun one = run();
    const DefaultsRun other = run();
    settingsOf(one).setHistoryLength(120);
    one.goOn();
    settingsOf(other).setShowMenuBar(false);
    other.goOn();
    EXPECT_EQ(load().historyLength(), 120);
    EXPECT_FALSE(load().showMenuBar());
}

TEST_F(StoredSettings, LocksOfAnEarlierVersionAreLeftAloneAndKeepNobody) {
    write("historyLength=60\n");
    const std::filesystem::path lock = file.string() + ".lock";
    writeFile(lock, "4711\nvantor\nanother-host\n");
    change([](AppSettings& settings) { settings.setShowMenuBar(false); });
    EXPECT_EQ(contents(), "historyLength=60\nshowMenuBar=false\n");
    EXPECT_EQ(contentOf(lock), "4711\nvantor\nanother-host\n");
    std::filesystem::remove(lock);
    std::filesystem::create_directory(lock);
    change([](AppSettings& settings) { settings.setShowMenuBar(true); });
    EXPECT_EQ(contents(), "historyLength=60\nshowMenuBar=true\n");
}

class LateSettings : public StoredSettings {
  protected:
    LateSettings() {
        write(
            "refreshInterval=5\nhistoryLength=1000\nshowMenuBar=false\n"
            "includePointToPointInterfaces=true\nappearance=light\n");
        program.emplace(runOn(file));
        EXPECT_FALSE(program->store().waitForRead(0ms));
        settings.emplace(program->shared(), application);
        program->store().setOnLateRead([this] { settings->takeUpStored(); });
    }

    std::optional<DefaultsRun> program;
    std::optional<AppSettings> settings;
};

TEST_F(LateSettings, TakeEffectWhenTheyAreRead) {
    expectDefaults(*settings);
    program->goOn();
    EXPECT_DOUBLE_EQ(settings->refreshInterval(), 5);
    EXPECT_EQ(settings->historyLength(), 300) << "repaired as by any load";
    EXPECT_FALSE(settings->showMenuBar());
    EXPECT_TRUE(settings->includePointToPointInterfaces());
    EXPECT_EQ(settings->appearance(), Appearance::light);
    EXPECT_THAT(application->calls, ElementsAre("dark", "light"));
    EXPECT_TRUE(contents().find("historyLength=1000") != std::string::npos) << "nothing is written";
}

TEST_F(LateSettings, GiveWayToWhatTheUserHasSet) {
    settings->setHistoryLength(1000);
    settings->setAppearance(Appearance::system);
    program->goOn();
    EXPECT_EQ(settings->historyLength(), 1000) << "as it was set";
    EXPECT_EQ(settings->appearance(), Appearance::system);
    EXPECT_DOUBLE_EQ(settings->refreshInterval(), 5);
    EXPECT_THAT(application->calls, ElementsAre("dark", "system"));
    EXPECT_EQ(load().appearance(), Appearance::system);
}

TEST_F(LateSettings, ThatAreTheSameDisturbNobody) {
    write("historyLength=90\n");
    int told = 0;
    const auto subscription = settings->historyLengthStream().observe([&](auto) { ++told; });
    program->goOn();
    EXPECT_EQ(told, 0);
    EXPECT_THAT(application->calls, ElementsAre("dark"));
}

}  // namespace
}  // namespace vantor::stored_settings_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/native_machine.h"
#include "ui/settings_fixture.h"

namespace vantor::settings_view_test {
namespace {

using testing::IsEmpty;
using Half = StepperView::Half;

TEST_F(SettingsViewTest, HasItsFourSectionsInOrder) {
    Strings titles;
    int above = -1;
    open();
    for (CompatibleFormSection* section : view->sections()) {
        titles.push_back(utf8(section->title().text()));
        EXPECT_GT(section->y(), above);
        above = section->y();
    }
    EXPECT_EQ(titles, (Strings{"Appearance", "Monitoring", "Data", "About"}));
}

TEST_F(SettingsViewTest, SaysItsTextsLetterByLetterOnAMac) {
    Strings texts;
    for (const CompatibleLabeledValue* row : view->values()) {
        auto& shown = const_cast<CompatibleLabeledValue&>(*row);
        texts.push_back(utf8(shown.label().text()) + " = " + utf8(shown.value().text()));
    }
    EXPECT_EQ(texts, (Strings{"Network privacy = No public IP lookup",
                              "Process source = Native macOS libproc",
                              "GPU telemetry = Metal + IORegistry", "Application = Vantor 1.2.3"}));
    EXPECT_EQ(utf8(view->pointToPoint().text()), "Include point-to-point and tunnel interfaces");
    EXPECT_EQ(utf8(view->menuBar().text()), "Show menu bar dashboard");
    EXPECT_EQ(utf8(view->exportButton().text()), "Export Current Snapshot…");
    EXPECT_EQ(utf8(view->historyRow().label().text()), "Chart history: 90 samples");
    EXPECT_EQ(utf8(view->theme().accessibleName()), "Theme");
    Strings choices;
    for (int i = 0; i < 3; ++i)
        choices.push_back(utf8(view->theme().button(i).text()));
    EXPECT_EQ(choices, (Strings{"System", "Dark", "Light"}));
}

TEST(SettingsViewOnLinux, NamesItsSourcesInItsOwnWords) {
    const ViewsWorld world;
    const auto machine = makeNativeMachine();
    if (machine->words().systemName != "Linux") GTEST_SKIP() << "the words are another system's";
    const SettingsView view({world.settings, machine, world.metadata, {}});
    EXPECT_EQ(utf8(view.values()[1]->value().text()), "Native Linux procfs");
    EXPECT_EQ(utf8(view.values()[2]->value().text()), "DRM + NVML");
}

TEST(SettingsForm, LabelsTheIntervals) {
    EXPECT_EQ(SettingsForm::intervalLabels(),
              (QStringList{QStringLiteral("0.5 second"), QStringLiteral("1 second"),
                           QStringLiteral("2 seconds"), QStringLiteral("5 seconds"),
                           QStringLiteral("10 seconds")}));
    EXPECT_EQ(utf8(SettingsForm::intervalLabel(3)), "3 seconds");
    EXPECT_EQ(utf8(SettingsForm::intervalLabel(0.75)), "0.75 seconds");
    EXPECT_EQ(utf8(SettingsForm::intervalLabel(std::nan(""))), "—");
    EXPECT_EQ(utf8(SettingsForm::intervalLabel(std::numeric_limits<double>::infinity())), "—");
}

TEST(SettingsViewOfAStore, AStoredHalfSecondIsShownAsOneAndTwoAsSeconds) {
    for (const auto& [stored, text] :
         {std::pair{0.5, "0.5 second"}, std::pair{2.0, "2 seconds"}, std::pair{1.0, "1 second"}}) {
        ViewsWorld world;
        world.defaults->setValue("refreshInterval", DefaultsStore::Value{stored});
        const auto settings = std::make_shared<AppSettings>(world.defaults, world.appearance);
        SettingsView view({settings, world.machine, world.metadata, {}});
        EXPECT_EQ(utf8(view.interval().text()), text);
    }
}

TEST_F(SettingsViewTest, TheThemeIsChosenByMouseAndByKey) {
    open();
    EXPECT_EQ(view->theme().choice(), 1) << "dark is the default";
    click(view->theme().button(2));
    EXPECT_EQ(world.settings->appearance(), Appearance::light);
    EXPECT_EQ(world.appearance->applied, Appearance::light);
    EXPECT_EQ(stored("appearance"), DefaultsStore::Value{std::string("light")});
    view->theme().button(2).setFocus();
    pressKey(view->theme().button(2), Qt::Key_Left);
    EXPECT_EQ(world.settings->appearance(), Appearance::dark);
    click(view->theme().button(0));
    EXPECT_EQ(world.settings->appearance(), Appearance::system);
}

TEST_F(SettingsViewTest, TheIntervalIsChosenByMouseAndByKey) {
    open();
    click(view->interval());
    ASSERT_TRUE(view->interval().menu().isVisible());
    view->interval().menu().close();
    view->interval().menu().actions()[3]->trigger();
    EXPECT_EQ(world.settings->refreshInterval(), 5);
    EXPECT_EQ(stored("refreshInterval"), DefaultsStore::Value{5.0});
    EXPECT_EQ(utf8(view->interval().text()), "5 seconds");
    pressKey(view->interval(), Qt::Key_Down);
    pressKey(view->interval().menu(), Qt::Key_Down);
    pressKey(view->interval().menu(), Qt::Key_Return);
    EXPECT_EQ(world.settings->refreshInterval(), 10);
    EXPECT_EQ(ticked(), (Strings{"10 seconds"}));
}

TEST_F(SettingsViewTest, TheHistoryIsSteppedByMouseAndByKeyWithinTheStoresBounds) {
    open();
    stepHistory(Half::more);
    EXPECT_EQ(world.settings->historyLength(), 91);
    EXPECT_EQ(stored("historyLength"), DefaultsStore::Value{std::int64_t{91}});
    EXPECT_EQ(utf8(view->historyRow().label().text()), "Chart history: 91 samples");
    pressKey(view->history(), Qt::Key_End);
    EXPECT_EQ(world.settings->historyLength(), 300);
    stepHistory(Half::more);
    EXPECT_EQ(world.settings->historyLength(), 300);
    pressKey(view->history(), Qt::Key_Home);
    EXPECT_EQ(world.settings->historyLength(), 30);
    stepHistory(Half::less);
    EXPECT_EQ(world.settings->historyLength(), 30);
}

TEST_F(SettingsViewTest, TogglesAreTurnedByMouseAndByKey) {
    open();
    click(view->pointToPoint());
    EXPECT_TRUE(world.settings->includePointToPointInterfaces());
    EXPECT_EQ(stored("includePointToPointInterfaces"), DefaultsStore::Value{true});
    pressKey(view->pointToPoint(), Qt::Key_Space);
    EXPECT_FALSE(world.settings->includePointToPointInterfaces());
    pressKey(view->menuBar(), Qt::Key_Return);
    EXPECT_FALSE(world.settings->showMenuBar());
    EXPECT_EQ(stored("showMenuBar"), DefaultsStore::Value{false});
    click(view->menuBar());
    EXPECT_TRUE(world.settings->showMenuBar());
}

TEST_F(SettingsViewTest, TurningTheMenuBarOffIsToldAtOnce) {
    open();
    std::vector<bool> told;
    const auto subscription =
        world.settings->showMenuBarStream().observe([&](bool isShown) { told.push_back(isShown); });
    click(view->menuBar());
    EXPECT_EQ(told, (std::vector<bool>{false}));
}

TEST_F(SettingsViewTest, TheExportIsAskedForByMouseAndByKey) {
    open();
    click(view->exportButton());
    pressKey(view->exportButton(), Qt::Key_Return);
    EXPECT_EQ(exports, 2);
    EXPECT_TRUE(view->exportButton().isEnabled());
    SettingsView without({world.settings, world.machine, world.metadata, {}});
    EXPECT_FALSE(without.exportButton().isEnabled());
}

TEST_F(SettingsViewTest, FollowsWhatIsChangedElsewhere) {
    open();
    world.settings->setAppearance(Appearance::light);
    EXPECT_EQ(view->theme().choice(), 2);
    world.settings->setRefreshInterval(2);
    EXPECT_EQ(utf8(view->interval().text()), "2 seconds");
    EXPECT_EQ(ticked(), (Strings{"2 seconds"}));
    world.settings->setHistoryLength(120);
    EXPECT_EQ(utf8(view->historyRow().label().text()), "Chart history: 120 samples");
    EXPECT_EQ(view->history().value(), 120);
    world.settings->setIncludePointToPointInterfaces(true);
    EXPECT_TRUE(view->pointToPoint().isChecked());
    world.settings->setShowMenuBar(false);
    EXPECT_FALSE(view->menuBar().isChecked());
}

/// Counts the writings.
class CountedDefaults : public KeptDefaults {
  public:
    void setValue(std::string_view key, const Value& value) override {
        KeptDefaults::setValue(key, value);
        ++writings;
    }
    int writings = 0;
};

TEST(SettingsViewOfAStore, EachChangeIsWrittenOnceFromWhereverItComes) {
    const ViewsWorld world;
    const auto defaults = std::make_shared<CountedDefaults>();
    const auto settings = std::make_shared<AppSettings>(defaults, world.appearance);
    SettingsView view({settings, world.machine, world.metadata, {}});
    SettingsView second({settings, world.machine, world.metadata, {}});
    EXPECT_EQ(defaults->writings, 0) << "showing the settings writes nothing";
    settings->setAppearance(Appearance::system);
    settings->setRefreshInterval(2);
    settings->setHistoryLength(100);
    settings->setShowMenuBar(false);
    settings->setIncludePointToPointInterfaces(true);
    EXPECT_EQ(defaults->writings, 5);
    click(view.theme().button(2));
    EXPECT_EQ(defaults->writings, 6);
    EXPECT_EQ(second.theme().choice(), 2);
    view.setVisible(true);
    view.resize(view.sizeHint());
    settleEvents();
    click(view.menuBar());
    EXPECT_EQ(defaults->writings, 7);
    EXPECT_TRUE(second.menuBar().isChecked());
    click(view.theme().button(2));
    EXPECT_EQ(defaults->writings, 7) << "what holds already is no change";
}

TEST_F(SettingsViewTest, ValuesThatAreNotOnOfferAreShownAndLeftAsTheyAre) {
    world.settings->setRefreshInterval(3);
    world.settings->setHistoryLength(1000);
    world.defaults->values.clear();
    view = make();
    open();
    EXPECT_EQ(utf8(view->interval().text()), "3 seconds");
    EXPECT_THAT(ticked(), IsEmpty());
    EXPECT_EQ(utf8(view->historyRow().label().text()), "Chart history: 1000 samples");
    EXPECT_EQ(world.settings->refreshInterval(), 3);
    EXPECT_EQ(world.settings->historyLength(), 1000);
    EXPECT_TRUE(world.defaults->values.empty());
    stepHistory(Half::less);
    EXPECT_EQ(world.settings->historyLength(), 300) << "the next one that is on offer";
}

TEST_F(SettingsViewTest, GoneItFollowsNothing) {
    view.reset();
    world.settings->setHistoryLength(120);
    EXPECT_FALSE(isStored("showMenuBar"));
}

}  // namespace
}  // namespace vantor::settings_view_test

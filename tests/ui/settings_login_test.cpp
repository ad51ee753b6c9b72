#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QScrollArea>
#include <QScrollBar>

#include "settings/autostart_entry.h"
#include "settings/fake_shared_file.h"
#include "ui/cut_texts.h"
#include "ui/settings_fixture.h"

namespace vantor::settings_login_test {
namespace {

/// Settings on a desktop that opens programs at login by entries.
class SettingsLogin : public SettingsViewTest {
  protected:
    std::unique_ptr<SettingsView> makeOffering() {
        return std::make_unique<SettingsView>(SettingsView::Environment{
            world.settings, world.machine, world.metadata, [] {}, {}, item});
    }
    void SetUp() override { view = makeOffering(); }
    void goOn() const {
        while (world.queues->runWaiting() + world.loop->runPosted() > 0)
            continue;
        settleEvents();
    }
    ToggleRowView& toggle() const { return view->login()->toggle(); }
    std::string problem() const {
        return view->login()->problem().isVisible() ? utf8(view->login()->problem().text()) : "";
    }
    bool hasNothingToScroll() const {
        return view->scrollArea().verticalScrollBar()->maximum() == 0;
    }

    const std::shared_ptr<FakeSharedFile> entry = std::make_shared<FakeSharedFile>();
    const std::shared_ptr<LoginItem> item =
        LoginItem::make({entry, [] { return std::string("vantor"); }, world.loop, world.queues});
};

TEST_F(SettingsLogin, WhereItIsNotOfferedThereIsNoRow) {
    EXPECT_EQ(make()->login(), nullptr);
}

TEST_F(SettingsLogin, ShowsWhatIsThereWhenItIsOpened) {
    entry->bytes = AutostartEntry::textFor("vantor");
    open();
    goOn();
    EXPECT_TRUE(toggle().isChecked());
    EXPECT_EQ(utf8(toggle().text()), "Open at Login");
    EXPECT_TRUE(hasNothingToScroll());
}

TEST_F(SettingsLogin, LooksAgainWhenTheUserComesBack) {
    open();
    goOn();
    EXPECT_FALSE(toggle().isChecked());
    entry->bytes = AutostartEntry::textFor("vantor");
    QEvent comesBack(QEvent::WindowActivate);
    QApplication::sendEvent(view.get(), &comesBack);
    goOn();
    EXPECT_TRUE(toggle().isChecked());
    entry->bytes.reset();
    view->setVisible(false);
    view->setVisible(true);
    goOn();
    EXPECT_FALSE(toggle().isChecked());
}

TEST_F(SettingsLogin, TheSwitchWritesAndRemovesTheEntry) {
    open();
    goOn();
    toggle().click();
    goOn();
    EXPECT_TRUE(entry->bytes);
    EXPECT_TRUE(toggle().isChecked());
    toggle().click();
    goOn();
    EXPECT_FALSE(entry->bytes);
    EXPECT_FALSE(toggle().isChecked());
}

TEST_F(SettingsLogin, AFailureIsSaidUnderTheSwitchWhichGoesBack) {
    entry->writeError = "You don't have permission.";
    open();
    goOn();
    EXPECT_EQ(problem(), "");
    toggle().click();
    goOn();
    EXPECT_FALSE(toggle().isChecked());
    EXPECT_EQ(problem(), "Not changed: you don't have permission.");
    EXPECT_GT(view->login()->problem().y(), toggle().y());
    entry->writeError.reset();
    toggle().click();
    goOn();
    EXPECT_EQ(problem(), "");
}

TEST_F(SettingsLogin, NothingIsCutWithALargerFontAndALongReason) {
    entry->writeError =
        "The volume on which it would be is full, and so nothing more can be written there.";
    for (const double factor : {1.0, 1.5}) {
        SCOPED_TRACE(factor);
        const LargerFont font(factor);
        view = makeOffering();
        openAt(view->minimumSizeHint());
        goOn();
        toggle().click();
        goOn();
        EXPECT_THAT(cutTexts(*view), testing::IsEmpty());
        ParagraphView& text = view->login()->problem();
        EXPECT_GE(text.height(), text.heightForWidth(text.width()));
    }
}

}  // namespace
}  // namespace vantor::settings_login_test

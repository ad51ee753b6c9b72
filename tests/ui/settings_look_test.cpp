#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QScrollArea>
#include <QScrollBar>

#include "ui/cut_texts.h"
#include "ui/settings_fixture.h"

/// How the settings are laid out, walked through and told of.
namespace vantor::settings_look_test {
namespace {

using testing::IsEmpty;

TEST_F(SettingsViewTest, TabGoesThroughTheControlsFromTopToBottom) {
    open();
    view->activateWindow();
    view->theme().button(1).setFocus();
    settleEvents();
    for (QWidget* control :
         std::initializer_list<QWidget*>{&view->interval(), &view->history(), &view->pointToPoint(),
                                         &view->menuBar(), &view->exportButton()}) {
        pressKey(*QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), control);
    }
}

TEST_F(SettingsViewTest, HasItsSmallestAndItsIdealSizeAndFitsInIt) {
    EXPECT_EQ(view->minimumSizeHint(), QSize(480, 480));
    EXPECT_EQ(view->sizeHint(), QSize(520, 560));
    open();
    EXPECT_EQ(view->scrollArea().verticalScrollBar()->maximum(), 0) << "nothing to scroll";
}

TEST_F(SettingsViewTest, WhereItIsLowItScrollsToTheControlThatHasTheFocus) {
    openAt({480, 240});
    QScrollBar& bar = *view->scrollArea().verticalScrollBar();
    ASSERT_GT(bar.maximum(), 0);
    view->activateWindow();
    view->menuBar().setFocus();
    settleEvents();
    pressKey(view->menuBar(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &view->exportButton());
    const QRect place(view->exportButton().mapTo(view.get(), QPoint()),
                      view->exportButton().size());
    EXPECT_TRUE(view->rect().contains(place));
}

TEST_F(SettingsViewTest, NamesAndValuesAreToldToAssistiveTechnology) {
    const auto name = [](QWidget& widget) {
        return utf8(QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name));
    };
    EXPECT_EQ(name(view->theme()), "Theme");
    EXPECT_EQ(name(view->theme().button(1)), "Dark");
    EXPECT_EQ(name(view->interval()), "Refresh interval 0.5 second");
    EXPECT_EQ(name(view->history()), "Chart history");
    EXPECT_EQ(name(view->pointToPoint()), "Include point-to-point and tunnel interfaces");
    EXPECT_EQ(name(view->menuBar()), "Show menu bar dashboard");
    EXPECT_EQ(name(view->exportButton()), "Export Current Snapshot…");
    EXPECT_EQ(name(view->values()[0]->value()), "Network privacy");
}

TEST_F(SettingsViewTest, FollowsAFontThatChangesWhileItIsOpen) {
    open();
    const LargerFont larger(1.5);
    settleEvents();
    EXPECT_GT(view->sizeHint().width(), 520);
    openAt(view->sizeHint());
    EXPECT_THAT(cutTexts(*view), IsEmpty());
}

/// Font, system version, size.
using Look = std::tuple<double, bool, bool>;

std::string nameOf(const Look& look) {
    const auto& [factor, isOld, isSmall] = look;
    return std::string(factor > 1 ? "Larger" : "Usual") + (isOld ? "Old" : "Modern") +
           (isSmall ? "Small" : "Ideal");
}

class SettingsLook : public SettingsViewTest, public testing::WithParamInterface<Look> {};

INSTANTIATE_TEST_SUITE_P(Of, SettingsLook,
                         testing::Combine(testing::Values(1.0, 1.5), testing::Bool(),
                                          testing::Bool()),
                         [](const auto& test) { return nameOf(test.param); });

TEST_P(SettingsLook, NothingIsCut) {
    const auto& [factor, isOld, isSmall] = GetParam();
    const LargerFont font(factor);
    if (isOld) world.makeOld();
    world.settings->setHistoryLength(1000);
    view = make();
    openAt(isSmall ? view->minimumSizeHint() : view->sizeHint());
    EXPECT_THAT(cutTexts(*view), IsEmpty());
    view->setLayoutDirection(Qt::RightToLeft);
    settleEvents();
    EXPECT_THAT(cutTexts(*view), IsEmpty());
}

}  // namespace
}  // namespace vantor::settings_look_test

#include "app/app_commands.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include <map>
#include <string>

#include "ui/rendering.h"

namespace vantor::app_commands_test {
namespace {

class AppCommandsTest : public testing::TestWithParam<bool> {
  protected:
    QMenuBar& bar() {
        return commands.sharedMenuBar() ? *commands.sharedMenuBar()
                                        : *commands.makeMenuBar(&window);
    }
    static QAction* find(QMenuBar& bar, const char* title) {
        for (QAction* const menu : bar.actions()) {
            for (QAction* const action : menu->menu()->actions()) {
                if (action->text() == QString::fromUtf8(title)) return action;
            }
        }
        return nullptr;
    }

    std::map<std::string, int> done;
    QWidget window;
    AppCommands commands{
        {[this] { ++done["about"]; }, [this] { ++done["refresh"]; }, [this] { ++done["export"]; },
         [this] { ++done["settings"]; }, [this] { ++done["help"]; }, [this] { ++done["quit"]; }},
        GetParam()};
};

INSTANTIATE_TEST_SUITE_P(MenuBars, AppCommandsTest, testing::Bool());

TEST_P(AppCommandsTest, EveryCommandIsInTheMenuBarOnce) {
    QMenuBar& menus = bar();
    for (const char* const title :
         {"About Vantor", "Refresh Now", "Export Snapshot…", "Settings…", "Vantor Help", "Quit"}) {
        QAction* const action = find(menus, title);
        ASSERT_NE(action, nullptr) << title;
        action->trigger();
    }
    EXPECT_EQ(done, (std::map<std::string, int>{{"about", 1},
                                                {"export", 1},
                                                {"help", 1},
                                                {"quit", 1},
                                                {"refresh", 1},
                                                {"settings", 1}}));
}

TEST_P(AppCommandsTest, WhatBelongsIntoTheProgramsOwnMenuSaysSo) {
    QMenuBar& menus = bar();
    EXPECT_EQ(find(menus, "About Vantor")->menuRole(), QAction::AboutRole);
    EXPECT_EQ(find(menus, "Settings…")->menuRole(), QAction::PreferencesRole);
    EXPECT_EQ(find(menus, "Quit")->menuRole(), QAction::QuitRole);
}

TEST_P(AppCommandsTest, CloseWindowClosesTheWindowThatIsUsed) {
    QMenuBar& menus = bar();
    window.show();
    window.activateWindow();
    QApplication::setActiveWindow(&window);
    find(menus, "Close Window")->trigger();
    EXPECT_FALSE(window.isVisible());
    QApplication::setActiveWindow(nullptr);
    find(menus, "Close Window")->trigger();  // where there is none, nothing
}

TEST(SharedMenuBar, ClosesWhicheverWindowIsInFront) {
    const AppCommands commands({[] {}, [] {}, [] {}, [] {}, [] {}, [] {}}, true);
    ASSERT_NE(commands.sharedMenuBar(), nullptr);
    EXPECT_EQ(commands.sharedMenuBar()->parent(), nullptr);
    QWidget front;
    QWidget other;
    other.show();
    front.show();
    QApplication::setActiveWindow(&front);
    for (QAction* const menu : commands.sharedMenuBar()->actions()) {
        for (QAction* const action : menu->menu()->actions()) {
            if (action->text() == QStringLiteral("Close Window")) action->trigger();
        }
    }
    EXPECT_FALSE(front.isVisible());
    EXPECT_TRUE(other.isVisible());
}

}  // namespace
}  // namespace vantor::app_commands_test

#include <gtest/gtest.h>

#include <cstdlib>

#include "e2e/tray_fixture.h"

/// The program and a real tray.
namespace vantor::tray_test {
namespace {

class Tray : public ProgramInATray {
  protected:
    void startWithIcon() {
        ASSERT_TRUE(desktop_.startTray());
        start();
        ASSERT_TRUE(eventually([this] { return hasIcon(); }, patience)) << "no icon in the tray";
    }
    /// The icon's white wave.
    bool hasIcon() {
        return countColor(desktop_.picture(), Desktop::trayArea(screen), Qt::white) > 8 &&
               countColor(desktop_.picture(), Desktop::trayArea(screen), QColor(0x7a, 0x94, 0xff)) >
                   0;
    }
    void pressIcon() { desktop_.clickAt(Desktop::trayArea(screen).center() + QPoint(6, 0)); }
};

TEST_F(Tray, ClosedIntoTheTrayItIsOpenedAgainFromItsPanel) {
    startWithIcon();
    closeIntoTheTray();
    pressIcon();
    ASSERT_TRUE(eventually([this] { return hasDrawnPopover(); }, patience))
        << "the panel did not open";
    desktop_.key(QStringLiteral("Return"));
    EXPECT_TRUE(eventually([this] { return !isHidden(); }, patience))
        << "the dashboard did not come back";
}

TEST_F(Tray, ThePanelOpensUnderItsIcon) {
    startWithIcon();
    pressIcon();
    ASSERT_TRUE(eventually([this] { return hasDrawnPopover(); }, patience))
        << "the panel did not open";
    const QRect icon = Desktop::trayArea(screen);
    EXPECT_LE(std::abs(popover().top() - icon.bottom()), 20);
    EXPECT_GE(popover().right(), icon.left());
}

TEST_F(Tray, ClosedAsSoonAsItIsThereItIsInTheTray) {
    ASSERT_FALSE(desktop_.startSessionBus().isEmpty());  // which has no tray
    ASSERT_TRUE(desktop_.startTray());
    program_.emplace(desktop_);
    ASSERT_TRUE(eventually([this] { return program_->isActive(); }, patience));
    closeIntoTheTray();
    EXPECT_TRUE(eventually([this] { return hasIcon(); }, patience));
    EXPECT_TRUE(program_->isRunning());
}

TEST_F(Tray, ClosedBeforeThereIsATrayItIsInTheTrayThatComes) {
    start();
    closeIntoTheTray();
    ASSERT_TRUE(desktop_.startTray());
    ASSERT_TRUE(eventually([this] { return hasIcon(); }, patience));
    EXPECT_TRUE(isHidden());
    pressIcon();
    EXPECT_TRUE(eventually([this] { return hasDrawnPopover(); }, patience));
}

TEST_F(Tray, ThePanelClosesWithEscapeAndWithAClickElsewhere) {
    startWithIcon();
    closeIntoTheTray();
    for (const bool byKey : {true, false}) {
        pressIcon();
        ASSERT_TRUE(eventually([this] { return hasDrawnPopover(); }, patience)) << byKey;
        if (byKey) {
            desktop_.key(QStringLiteral("Escape"));
        } else {
            desktop_.clickAt({300, 600});
        }
        EXPECT_TRUE(eventually([this] { return !hasPopover(); }, patience)) << byKey;
        EXPECT_TRUE(program_->isRunning());
    }
}

TEST_F(Tray, SwitchedOffClosingTheWindowEndsTheProgram) {
    write("[General]\nshowMenuBar=false\n");
    ASSERT_TRUE(desktop_.startTray());
    start();
    EXPECT_FALSE(hasIcon());
    closeWindow();
    ASSERT_TRUE(program_->waitForEnd(patience));
    EXPECT_EQ(program_->exitStatus(), 0);
}

TEST_F(Tray, ATrayThatAppearsLateGetsTheIcon) {
    start();
    EXPECT_FALSE(hasIcon());
    ASSERT_TRUE(desktop_.startTray());
    EXPECT_TRUE(eventually([this] { return hasIcon(); }, patience));
}

TEST_F(Tray, ATrayThatIsRestartedHasTheIconAgain) {
    startWithIcon();
    closeIntoTheTray();
    desktop_.stopTray();
    ASSERT_TRUE(desktop_.startTray());
    EXPECT_TRUE(eventually([this] { return hasIcon(); }, patience));
    EXPECT_TRUE(isHidden()) << "it was away too short to matter";
}

TEST_F(Tray, WithATrayThatIsGoneForGoodTheWindowComesBack) {
    startWithIcon();
    closeIntoTheTray();
    desktop_.stopTray();
    EXPECT_TRUE(eventually([this] { return program_->isActive(); }, patience));
    closeWindow();
    EXPECT_TRUE(program_->waitForEnd(patience)) << "now nothing would lead back to it";
}

TEST_F(Tray, QuitInThePanelEndsTheProgram) {
    startWithIcon();
    closeIntoTheTray();
    pressIcon();
    ASSERT_TRUE(eventually([this] { return hasDrawnPopover(); }, patience));
    desktop_.key(QStringLiteral("shift+Tab"));
    desktop_.key(QStringLiteral("Return"));
    ASSERT_TRUE(program_->waitForEnd(patience));
    EXPECT_EQ(program_->exitStatus(), 0);
}

}  // namespace
}  // namespace vantor::tray_test

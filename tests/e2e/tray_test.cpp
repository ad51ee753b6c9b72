#include <gtest/gtest.h>

#include <QFile>

#include <algorithm>

#include "e2e/program_fixture.h"

/// The program and a real tray.
namespace vantor::tray_test {
namespace {

class Tray : public ProgramOnADesktop {
  protected:
    void startWithIcon() {
        ASSERT_TRUE(desktop_.startTray());
        start();
        ASSERT_TRUE(eventually([this] { return hasIcon(); })) << "no icon in the tray";
    }
    /// The icon's white wave.
    bool hasIcon() {
        return countColor(desktop_.picture(), Desktop::trayArea(screen), Qt::white) > 8 &&
               countColor(desktop_.picture(), Desktop::trayArea(screen), QColor(0x7a, 0x94, 0xff)) >
                   0;
    }
    void write(const QByteArray& settings) {
        QFile file(desktop_.settingsFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(settings);
    }
    void closeWindow() { desktop_.key(QStringLiteral("alt+F4")); }
    bool isHidden() { return program_->window().isEmpty(); }
    void pressIcon() { desktop_.clickAt(Desktop::trayArea(screen).center() + QPoint(6, 0)); }

    /// A window of the popover's width, its border included.
    bool hasPopover() {
        const QString ids = desktop_.run(QStringLiteral("xdotool"),
                                         {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                          QStringLiteral("--class"), QStringLiteral("vantor")});
        const auto all = ids.split(u'\n', Qt::SkipEmptyParts);
        return std::ranges::any_of(all, [this](const QString& id) {
            return desktop_.run(QStringLiteral("xwininfo"), {QStringLiteral("-id"), id})
                .contains(QStringLiteral("Width: 332\n"));
        });
    }
};

TEST_F(Tray, ClosedIntoTheTrayItIsOpenedAgainFromItsPanel) {
    startWithIcon();
    closeWindow();
    ASSERT_TRUE(eventually([this] { return isHidden(); }));
    EXPECT_TRUE(program_->isRunning());
    pressIcon();
    ASSERT_TRUE(eventually([this] { return hasPopover(); })) << "the panel did not open";
    desktop_.key(QStringLiteral("Return"));
    EXPECT_TRUE(eventually([this] { return !isHidden(); })) << "the dashboard did not come back";
}

TEST_F(Tray, ThePanelClosesWithEscapeAndWithAClickElsewhere) {
    startWithIcon();
    closeWindow();
    ASSERT_TRUE(eventually([this] { return isHidden(); }));
    for (const bool byKey : {true, false}) {
        pressIcon();
        ASSERT_TRUE(eventually([this] { return hasPopover(); })) << byKey;
        if (byKey) {
            desktop_.key(QStringLiteral("Escape"));
        } else {
            desktop_.clickAt({300, 600});
        }
        EXPECT_TRUE(eventually([this] { return !hasPopover(); })) << byKey;
        EXPECT_TRUE(program_->isRunning());
    }
}

TEST_F(Tray, SwitchedOffClosingTheWindowEndsTheProgram) {
    write("[General]\nshowMenuBar=false\n");
    ASSERT_TRUE(desktop_.startTray());
    start();
    EXPECT_FALSE(hasIcon());
    closeWindow();
    ASSERT_TRUE(program_->waitForEnd(2000));
    EXPECT_EQ(program_->exitStatus(), 0);
}

TEST_F(Tray, ATrayThatAppearsLateGetsTheIcon) {
    start();
    EXPECT_FALSE(hasIcon());
    ASSERT_TRUE(desktop_.startTray());
    EXPECT_TRUE(eventually([this] { return hasIcon(); }));
}

TEST_F(Tray, ATrayThatIsRestartedHasTheIconAgain) {
    startWithIcon();
    closeWindow();
    ASSERT_TRUE(eventually([this] { return isHidden(); }));
    desktop_.stopTray();
    ASSERT_TRUE(eventually([this] { return !hasIcon(); }));
    ASSERT_TRUE(desktop_.startTray());
    EXPECT_TRUE(eventually([this] { return hasIcon(); }));
    EXPECT_TRUE(isHidden()) << "it was away too short to matter";
}

TEST_F(Tray, WithATrayThatIsGoneForGoodTheWindowComesBack) {
    startWithIcon();
    closeWindow();
    ASSERT_TRUE(eventually([this] { return isHidden(); }));
    desktop_.stopTray();
    EXPECT_TRUE(eventually([this] { return !isHidden(); }, 15'000));
    closeWindow();
    EXPECT_TRUE(program_->waitForEnd(5000)) << "now nothing would lead back to it";
}

TEST_F(Tray, QuitInThePanelEndsTheProgram) {
    startWithIcon();
    closeWindow();
    ASSERT_TRUE(eventually([this] { return isHidden(); }));
    pressIcon();
    ASSERT_TRUE(eventually([this] { return hasPopover(); }));
    desktop_.key(QStringLiteral("shift+Tab"));
    desktop_.key(QStringLiteral("Return"));
    ASSERT_TRUE(program_->waitForEnd(3000));
    EXPECT_EQ(program_->exitStatus(), 0);
}

}  // namespace
}  // namespace vantor::tray_test

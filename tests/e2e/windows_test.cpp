#include <gtest/gtest.h>

#include <QFile>

#include "e2e/program_fixture.h"

/// The windows beside the main one, and what is changed in them.
namespace vantor::windows_test {
namespace {

class Windows : public ProgramOnADesktop {
  protected:
    void SetUp() override {
        ProgramOnADesktop::SetUp();
        start();
    }
    QByteArray settings() {
        QFile file(desktop_.settingsFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool hasWindow(const char* title) {
        const QString pattern = u'^' + QString::fromLatin1(title) + u'$';
        return !desktop_
                    .run(QStringLiteral("xdotool"),
                         {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                          QStringLiteral("--name"), pattern})
                    .isEmpty();
    }
    /// Where what is typed arrives.
    bool isInFront(const char* title) {
        return desktop_
                   .run(QStringLiteral("xdotool"),
                        {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")})
                   .trimmed() == QLatin1StringView(title);
    }
    int lightnessBehind() {
        const QRect area = program_->windowArea();
        return desktop_.picture().pixelColor(area.bottomLeft() + QPoint(4, -4)).lightness();
    }
};

TEST_F(Windows, TheThemeChosenByKeyboardChangesAllWindowsAtOnceAndIsKept) {
    ASSERT_LT(lightnessBehind(), 60);
    desktop_.key(QStringLiteral("ctrl+comma"));
    ASSERT_TRUE(eventually([this] { return isInFront("Vantor Settings"); }));
    // Where the keyboard arrives first is the theme that is chosen: dark, right of it light.
    desktop_.key(QStringLiteral("Tab"));
    desktop_.key(QStringLiteral("Right"));
    EXPECT_TRUE(eventually([this] { return lightnessBehind() > 200; }));
    EXPECT_TRUE(eventually([this] { return settings().contains("appearance=light"); }))
        << settings().toStdString();
    desktop_.key(QStringLiteral("Left"));
    EXPECT_TRUE(eventually([this] { return lightnessBehind() < 60; }));
}

TEST_F(Windows, HelpOpensWithItsKeyAndClosesWithEscape) {
    desktop_.key(QStringLiteral("F1"));
    ASSERT_TRUE(eventually([this] { return isInFront("Vantor Help"); }));
    desktop_.key(QStringLiteral("Escape"));
    EXPECT_TRUE(eventually([this] { return !hasWindow("Vantor Help"); }));
    EXPECT_TRUE(program_->isRunning());
}

TEST_F(Windows, TheMainWindowIsClosedByItsKeyWhileAnotherOneKeepsTheProgram) {
    desktop_.key(QStringLiteral("F1"));
    ASSERT_TRUE(eventually([this] { return isInFront("Vantor Help"); }));
    desktop_.key(QStringLiteral("ctrl+w"));
    EXPECT_TRUE(eventually([this] { return !hasWindow("Vantor Help"); }));
    ASSERT_TRUE(eventually([this] { return isInFront("Vantor"); }));
    desktop_.key(QStringLiteral("ctrl+w"));
    EXPECT_TRUE(eventually([this] { return !hasWindow("Vantor"); }));
    EXPECT_TRUE(program_->isRunning()) << "a tray may still come";
}

TEST_F(Windows, QuitHasItsKey) {
    desktop_.key(QStringLiteral("ctrl+q"));
    ASSERT_TRUE(program_->waitForEnd(3000));
    EXPECT_EQ(program_->exitStatus(), 0);
}

TEST_F(Windows, AboutIsInTheHelpMenu) {
    desktop_.key(QStringLiteral("alt+h"));
    ASSERT_TRUE(eventually([this] { return program_->hasOpenMenu(); }));
    desktop_.key(QStringLiteral("Up"));  // to the last entry
    desktop_.key(QStringLiteral("Return"));
    EXPECT_TRUE(eventually([this] { return hasWindow("About Vantor"); }));
}

}  // namespace
}  // namespace vantor::windows_test

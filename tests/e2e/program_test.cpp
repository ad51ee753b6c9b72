#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "ui/theme.h"

#include "e2e/desktop.h"
#include "e2e/running_program.h"

namespace vantor::program_test {
namespace {

constexpr QSize screen{1366, 900};

QRect headerOf(const RunningProgram& program) {
    const QRect area = program.windowArea();
    return {area.topLeft(), QSize(area.width(), 150)};
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A program that has drawn its first live figures.
class Program : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(desktop_.isUp()) << "the virtual desktop did not start"; }

    void start() {
        program_.emplace(desktop_);
        ASSERT_TRUE(program_->waitForLiveData());
        ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
    }

    void tabTo(int stop) {
        for (int i = 0; i < stop; ++i)
            desktop_.key(QStringLiteral("Tab"));
        ASSERT_TRUE(eventually([this] { return !program_->focusedButton().isEmpty(); }));
    }

    bool showsInHeader(const QColor& color) {
        return countColor(desktop_.picture(), headerOf(*program_), color) > 20;
    }

    Desktop desktop_{screen};
    std::optional<RunningProgram> program_;
};

// Where the Tab key arrives in turn.
constexpr int intervalStop = 1;
constexpr int pauseStop = 2;
constexpr int quitStop = 5;

TEST_F(Program, OpensAtItsDefaultSizeAndDrawsLiveFigures) {
    start();
    EXPECT_EQ(program_->windowArea().size(), QSize(1280, 820));
    const QImage picture = desktop_.picture();
    EXPECT_GT(countColor(picture, program_->windowArea(), VantorTheme::cyan()), 50);
    EXPECT_TRUE(showsInHeader(VantorTheme::green())) << "the status pill is not live";
}

TEST_F(Program, LoadsNoneOfTheToolkitsPluginsForPictures) {
    start();
    const QByteArray mapped = read(QStringLiteral("/proc/%1/maps").arg(program_->processId()));
    ASSERT_TRUE(mapped.contains("/platforms/"));
    EXPECT_FALSE(mapped.contains("/imageformats/"));
    EXPECT_FALSE(mapped.contains("/iconengines/"));
}

TEST_F(Program, PausesAndResumesByKeyboard) {
    start();
    tabTo(pauseStop);
    desktop_.key(QStringLiteral("space"));
    EXPECT_TRUE(eventually([this] { return showsInHeader(VantorTheme::orange()); }));
    desktop_.key(QStringLiteral("Return"));
    EXPECT_TRUE(eventually([this] { return !showsInHeader(VantorTheme::orange()); }));
}

TEST_F(Program, PausesByMouse) {
    start();
    tabTo(pauseStop);
    const QRect button = program_->focusedButton();
    desktop_.clickAt(button.center());
    EXPECT_TRUE(eventually([this] { return showsInHeader(VantorTheme::orange()); }));
}

TEST_F(Program, QuitEndsItAtOnceWithSuccess) {
    start();
    tabTo(quitStop);
    desktop_.key(QStringLiteral("space"));
    ASSERT_TRUE(program_->waitForEnd(2000));
    EXPECT_TRUE(program_->endedNormally());
    EXPECT_EQ(program_->exitStatus(), 0);
}

TEST_F(Program, ClosingItsOnlyWindowEndsIt) {
    QFile settings(desktop_.settingsFile());
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("[General]\nshowMenuBar=false\n");  // or it would wait for a tray
    settings.close();
    start();
    desktop_.key(QStringLiteral("alt+F4"));
    ASSERT_TRUE(program_->waitForEnd(2000));
    EXPECT_EQ(program_->exitStatus(), 0);
}

TEST_F(Program, AnIntervalChosenFromTheMenuIsStored) {
    start();
    tabTo(intervalStop);
    desktop_.key(QStringLiteral("space"));
    ASSERT_TRUE(eventually([this] { return program_->hasOpenMenu(); }));
    // From the current choice, which is the first, to the last.
    for (int i = 0; i < 4; ++i)
        desktop_.key(QStringLiteral("Down"));
    desktop_.key(QStringLiteral("Return"));
    EXPECT_TRUE(eventually([this] {
        return read(desktop_.settingsFile()).contains("refreshInterval=10\n");
    })) << read(desktop_.settingsFile()).toStdString();
}

TEST_F(Program, CannotBeMadeSmallerThanItsSmallestSize) {
    start();
    desktop_.run(QStringLiteral("xdotool"), {QStringLiteral("windowsize"), program_->window(),
                                             QStringLiteral("300"), QStringLiteral("200")});
    EXPECT_TRUE(eventually([this] { return program_->windowArea().size() == QSize(720, 560); }));
}

TEST_F(Program, AtItsSmallestSizeTheControlsAreUnderTheName) {
    start();
    desktop_.run(QStringLiteral("xdotool"), {QStringLiteral("windowsize"), program_->window(),
                                             QStringLiteral("720"), QStringLiteral("560")});
    ASSERT_TRUE(eventually([this] { return program_->windowArea().size() == QSize(720, 560); }));
    tabTo(pauseStop);
    const QRect button = program_->focusedButton();
    EXPECT_GT(button.top() - program_->windowArea().top(), 70);
    desktop_.clickAt(button.center());
    EXPECT_TRUE(eventually([this] { return showsInHeader(VantorTheme::orange()); }));
}

TEST_F(Program, LightIsLight) {
    write(desktop_.settingsFile(), "[General]\nappearance=light\n");
    start();
    const QRect area = program_->windowArea();
    const QColor corner = desktop_.picture().pixelColor(area.topLeft() + QPoint(4, 4));
    EXPECT_GT(corner.lightness(), 220);
}

TEST_F(Program, ADamagedSettingsFileIsKeptAsideAndDefaultsAreUsed) {
    const QByteArray damaged = QByteArray("\x89PNG\r\n\x1a\n\0\0", 10);
    write(desktop_.settingsFile(), damaged);
    start();
    EXPECT_EQ(read(desktop_.settingsFile() + QStringLiteral(".damaged-1")), damaged);
    const QColor corner =
        desktop_.picture().pixelColor(program_->windowArea().topLeft() + QPoint(4, 4));
    EXPECT_LT(corner.lightness(), 40) << "the default appearance is dark";
}

}  // namespace
}  // namespace vantor::program_test

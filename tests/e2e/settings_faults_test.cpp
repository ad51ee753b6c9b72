#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>

#include "support/served_folder.h"
#include "ui/theme.h"

#include "e2e/program_fixture.h"

/// Whatever is wrong with the place for the preferences: the window comes, a setting can be
/// changed, the end comes at once, and what can be kept is kept.
namespace vantor::settings_faults_test {
namespace {

constexpr auto settingsTitle = "Vantor Settings";
// Three seconds for what is to be written, the rest of the end, and a busy machine.
constexpr int endPatience = 15'000;

class SettingsFaults : public ProgramOnADesktop {
  protected:
    void SetUp() override {
        ProgramOnADesktop::SetUp();
        ASSERT_TRUE(QDir().mkpath(folder()));
    }
    void TearDown() override {
        program_.reset();
        if (served_) served_->shutDown();
        ::umount2(QFile::encodeName(folder()).constData(), MNT_DETACH);
    }

    QString folder() const { return QFileInfo(desktop_.settingsFile()).path(); }
    QString beside(const char* name) const { return folder() + u'/' + QLatin1StringView(name); }

    static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray stored() const { return read(desktop_.settingsFile()); }

    /// From now on nobody else sees what is mounted.
    static bool canMount() {
        return ::unshare(CLONE_NEWNS) == 0 &&
               ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    }
    bool mountSmallDisk() const {
        return canMount() && ::mount("none", QFile::encodeName(folder()).constData(), "tmpfs", 0,
                                     "size=64k") == 0;
    }
    void fillDisk() const {
        QFile filler(beside("filler"));
        ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const QByteArray block(4096, 'x');
        while (filler.write(block) > 0)
            continue;
    }
    bool mountHanging(const QString& path) {
        if (!canMount()) return false;
        served_.emplace(path.toStdString(), "fuse.slow");
        if (!served_->isMounted() || !eventually([this] { return served_->hasGreeted(); }))
            return false;
        served_->setManner(ServedFolder::Manner::readsNothing);
        return true;
    }

    void openSettings() const {
        desktop_.key(QStringLiteral("ctrl+comma"));
        ASSERT_TRUE(eventually(
            [this] { return desktop_.windowsTitled(QLatin1StringView(settingsTitle)) == 1; }));
        desktop_.activate(QLatin1StringView(settingsTitle));
        // Where the keyboard arrives first is the theme that is chosen.
        desktop_.key(QStringLiteral("Tab"));
    }
    QRect settingsArea() const {
        const QString text =
            desktop_.run(QStringLiteral("xdotool"),
                         {QStringLiteral("search"), QStringLiteral("--name"),
                          QStringLiteral("^Vantor Settings$"), QStringLiteral("getwindowgeometry"),
                          QStringLiteral("--shell")});
        const auto number = [&](const char* name) {
            const QString line = QLatin1StringView(name) + u'=';
            return text.mid(text.indexOf(line) + line.size()).section(u'\n', 0, 0).toInt();
        };
        return {number("X"), number("Y"), number("WIDTH"), number("HEIGHT")};
    }
    /// What the corner of the settings shows is their background.
    bool isLight() const {
        const QImage picture = desktop_.picture();
        return qGray(picture.pixel(settingsArea().topLeft() + QPoint(6, 6))) > 160;
    }
    void choose(const char* key, bool light) const {
        desktop_.key(QLatin1StringView(key));
        ASSERT_TRUE(eventually([&] { return isLight() == light; })) << "the theme did not change";
    }
    /// In the lowest part of the settings, its sign and its text.
    bool showsNotice() const {
        QRect area = settingsArea();
        area.setTop(area.bottom() - 36);
        return countColor(desktop_.picture(), area, VantorTheme::orange()) > 10;
    }
    void expectNotice(bool isThere) const {
        EXPECT_TRUE(eventually([&] { return showsNotice() == isThere; }));
    }
    void expectPromptEnd() {
        program_->terminate();
        ASSERT_TRUE(program_->waitForEnd(endPatience));
        EXPECT_TRUE(program_->endedNormally());
        EXPECT_EQ(program_->exitStatus(), 0);
    }

    std::optional<ServedFolder> served_;
};

TEST_F(SettingsFaults, AFolderThatHangsFreezesNothing) {
    if (!mountHanging(folder())) GTEST_SKIP() << "nothing can be mounted here";
    start();
    openSettings();
    choose("Right", true);
    expectNotice(true);
    choose("Left", false);
    expectPromptEnd();
}

TEST_F(SettingsFaults, AFullDiskIsToldAndWhatWasSetIsThereOnceThereIsRoom) {
    if (!mountSmallDisk()) GTEST_SKIP() << "nothing can be mounted here";
    const QByteArray old = "[General]\nhistoryLength=60\n";
    write(desktop_.settingsFile(), old);
    fillDisk();
    start();
    openSettings();
    choose("Right", true);
    expectNotice(true);
    EXPECT_EQ(stored(), old);
    ASSERT_TRUE(QFile::remove(beside("filler")));
    choose("Left", false);
    EXPECT_TRUE(eventually([this] { return stored().contains("appearance=dark"); }));
    EXPECT_TRUE(stored().contains("historyLength=60"));
    expectNotice(false);
    expectPromptEnd();
}

TEST_F(SettingsFaults, AFullDiskIsTriedAgainAtTheEnd) {
    if (!mountSmallDisk()) GTEST_SKIP() << "nothing can be mounted here";
    fillDisk();
    start();
    openSettings();
    choose("Right", true);
    expectNotice(true);
    ASSERT_TRUE(QFile::remove(beside("filler")));
    expectPromptEnd();
    EXPECT_TRUE(stored().contains("appearance=light")) << stored().toStdString();
}

TEST_F(SettingsFaults, ADiskThatCanOnlyBeReadIsTold) {
    if (!mountSmallDisk()) GTEST_SKIP() << "nothing can be mounted here";
    write(desktop_.settingsFile(), "[General]\nappearance=light\n");
    ASSERT_EQ(::mount("none", QFile::encodeName(folder()).constData(), nullptr,
                      MS_REMOUNT | MS_RDONLY, nullptr),
              0);
    start();
    openSettings();
    EXPECT_TRUE(eventually([this] { return isLight(); })) << "what is there is read";
    choose("Left", false);
    expectNotice(true);
    expectPromptEnd();
    EXPECT_EQ(stored(), "[General]\nappearance=light\n");
}

TEST_F(SettingsFaults, LocksThatWereLeftBehindKeepNobody) {
    write(beside("settings.ini.lock"), "4711\nvantor\nanother-host\n");
    ASSERT_EQ(::mkfifo(QFile::encodeName(beside("windows.ini.lock")).constData(), 0600), 0);
    start();
    openSettings();
    choose("Right", true);
    EXPECT_TRUE(eventually([this] { return stored().contains("appearance=light"); }, 2'000));
    EXPECT_FALSE(showsNotice());
    expectPromptEnd();
    EXPECT_EQ(read(beside("settings.ini.lock")), "4711\nvantor\nanother-host\n");
}

TEST_F(SettingsFaults, AFolderInItsPlaceIsToldAndStays) {
    ASSERT_TRUE(QDir().mkpath(desktop_.settingsFile()));
    start();
    openSettings();
    choose("Right", true);
    expectNotice(true);
    expectPromptEnd();
    EXPECT_TRUE(QFileInfo(desktop_.settingsFile()).isDir());
}

TEST_F(SettingsFaults, APipeInItsPlaceIsToldAndStays) {
    const QByteArray pipe = QFile::encodeName(desktop_.settingsFile());
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    start();
    openSettings();
    choose("Right", true);
    expectNotice(true);
    expectPromptEnd();
    struct stat found {};
    ASSERT_EQ(::stat(pipe.constData(), &found), 0);
    EXPECT_TRUE(S_ISFIFO(found.st_mode));
}

}  // namespace
}  // namespace vantor::settings_faults_test

#include <gtest/gtest.h>
#include <signal.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QThread>

#include <algorithm>
#include <vector>

#include "e2e/faults/fault_scene.h"

/// The program is killed in the midst of writing, again and again.
namespace vantor::kills_test {
namespace {

constexpr int kills = 200;
constexpr unsigned maxWriteTime = 60'000;  ///< microseconds
const QString exportTitle = QStringLiteral("Export System Snapshot");
const QString settingsTitle = QStringLiteral("Vantor Settings");
const QString replaceTitle = QStringLiteral("Replace File");
const QByteArray oldDocument("old");

/// Milliseconds of the median and the longest.
QString summary(std::vector<double> times) {
    std::ranges::sort(times);
    return QStringLiteral("live in %1 s (median; longest %2 s)")
        .arg(times.at(times.size() / 2) / 1000, 0, 'f', 2)
        .arg(times.back() / 1000, 0, 'f', 2);
}

class Kills : public FaultScene {
  protected:
    void kill() {
        ASSERT_EQ(::kill(static_cast<pid_t>(program_->processId()), SIGKILL), 0);
        ASSERT_TRUE(program_->waitForEnd(patience));
    }

    static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void write(const QString& path, const QByteArray& text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }

    /// The files in a folder whose names end otherwise.
    static QStringList leftIn(const QString& folder, const char* ending) {
        QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
        names.removeIf(
            [&](const QString& name) { return name.endsWith(QLatin1StringView(ending)); });
        return names;
    }

    /// As if they had been left two hours ago.
    static void age(const QString& folder, const QStringList& names) {
        for (const QString& name : names) {
            QFile file(QDir(folder).filePath(name));
            ASSERT_TRUE(file.open(QIODevice::ReadWrite));
            ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-7200),
                                         QFileDevice::FileModificationTime));
        }
    }

    void openSettings() {
        waitForKeyboard();
        desktop_.key(QStringLiteral("ctrl+comma"));
        ASSERT_TRUE(
            eventually([this] { return desktop_.activeTitle() == settingsTitle; }, patience));
        desktop_.key(QStringLiteral("Tab"));  // to the theme
    }

    /// The theme to and fro all the time, until the program is killed.
    void killWhileThemeChanges() {
        QStringList presses{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("8")};
        for (int press = 0; press < 200; ++press)
            presses << (press % 2 == 0 ? QStringLiteral("Right") : QStringLiteral("Left"));
        QProcess keys;
        keys.setProcessEnvironment(desktop_.environment());
        keys.start(QStringLiteral("xdotool"), presses);
        QThread::msleep(60 + QRandomGenerator::global()->bounded(200U));
        kill();
        keys.kill();
        keys.waitForFinished(patience);
    }

    QDateTime settingsTime() const { return QFileInfo(desktop_.settingsFile()).lastModified(); }

    /// Whether every setting is there, with a value that it has had.
    static bool isWhole(const QByteArray& settings) {
        const auto has = [&](const char* line) { return settings.contains(line); };
        return has("[General]\n") && has("historyLength=123\n") && has("refreshInterval=0.5\n") &&
               (has("appearance=dark\n") || has("appearance=light\n") ||
                has("appearance=system\n"));
    }

    /// By the save dialog. A file that is there is replaced.
    void exportTo(const QString& file, bool isNew) {
        waitForKeyboard();
        desktop_.key(QStringLiteral("ctrl+e"));
        ASSERT_TRUE(eventually([this] { return desktop_.activeTitle() == exportTitle; }, patience));
        desktop_.key(QStringLiteral("ctrl+a"));
        desktop_.type(file);
        desktop_.key(QStringLiteral("Return"));
        if (isNew) return;
        ASSERT_TRUE(eventually([this] { return desktop_.activeTitle() == replaceTitle; }, patience))
            << "nothing is asked";
        desktop_.key(QStringLiteral("alt+r"));
    }

    /// After the kills: it starts as fast as before them.
    void expectPrompt(std::vector<double> times, double before) {
        std::ranges::sort(times);
        EXPECT_LT(times.at(times.size() / 2), std::max(maxStartTime, 2 * before)) << "the median";
        EXPECT_LT(times.back(), std::max(2 * maxStartTime, 4 * before)) << "the longest";
    }

    /// How long a start takes here when nothing was killed before it: the longest of three.
    double usualStart() {
        double longest = 0;
        for (int i = 0; i < 3; ++i) {
            longest = std::max(longest, start());
            program_->terminate();
            EXPECT_TRUE(program_->waitForEnd(patience));
        }
        return longest;
    }
};

TEST_F(Kills, WhileSettingsChangeLeaveThemWholeAndNothingBeside) {
    const QString folder = desktop_.path(QStringLiteral("config/vantor"));
    write(desktop_.settingsFile(),
          "[General]\nappearance=dark\nhistoryLength=123\nrefreshInterval=0.5\n");
    const double before = usualStart();
    std::vector<double> times;
    int written = 0;
    for (int i = 0; i < rounds(kills); ++i) {
        times.push_back(start());
        openSettings();
        if (HasFatalFailure()) return;
        const QDateTime last = settingsTime();
        killWhileThemeChanges();
        if (settingsTime() != last) ++written;
        const QByteArray now = read(desktop_.settingsFile());
        ASSERT_TRUE(isWhole(now)) << "after kill " << i << ": " << now.toStdString();
    }
    const auto left = leftIn(folder, ".ini");
    age(folder, left);
    times.push_back(start());
    openSettings();
    const QDateTime last = settingsTime();
    // Whichever theme it is, one of the two leads to another one.
    const auto isWritten = [&] { return settingsTime() != last; };
    EXPECT_TRUE(eventually(
        [&] {
            desktop_.key(QStringLiteral("Right"));
            if (eventually(isWritten, 2000)) return true;
            desktop_.key(QStringLiteral("Left"));
            return eventually(isWritten, 2000);
        },
        patience))
        << "no setting is written any more";
    program_->terminate();
    ASSERT_TRUE(program_->waitForEnd(patience));
    expectPrompt(times, before);
    EXPECT_GT(written, 0) << "nothing was ever written";
    EXPECT_TRUE(leftIn(folder, ".ini").isEmpty())
        << leftIn(folder, ".ini").join(u' ').toStdString();
    report(QStringLiteral("kill -9 x %1 while settings change").arg(rounds(kills)),
           QStringLiteral("old or new, whole; live in 2 s; nothing is left after an hour"),
           QStringLiteral("all whole, %1 files left at first, %2, %3 wrote")
               .arg(left.size())
               .arg(summary(times))
               .arg(written));
}

TEST_F(Kills, WhileExportsAreWrittenLeaveNoHalfFile) {
    const QString folder = desktop_.path(QStringLiteral("out"));
    ASSERT_TRUE(QDir().mkpath(folder));
    const double before = usualStart();
    std::vector<double> times;
    int written = 0;
    for (int i = 0; i < rounds(kills); ++i) {
        times.push_back(start());
        // Every other one replaces a file.
        const bool isNew = i % 2 == 0;
        const QString file = folder + QStringLiteral("/%1.json").arg(i);
        if (!isNew) write(file, oldDocument);
        exportTo(file, isNew);
        if (HasFatalFailure()) return;
        // From before the write to well after it.
        QThread::usleep(QRandomGenerator::global()->bounded(maxWriteTime));
        kill();
        const QByteArray now = read(file);
        if (isNew ? !QFile::exists(file) : now == oldDocument) continue;
        ++written;
        ASSERT_TRUE(QJsonDocument::fromJson(now).isObject()) << "after kill " << i;
    }
    const auto left = leftIn(folder, ".json");
    age(folder, left);
    times.push_back(start());
    exportTo(folder + QStringLiteral("/last.json"), true);
    EXPECT_TRUE(eventually([&] { return leftIn(folder, ".json").isEmpty(); }, patience))
        << leftIn(folder, ".json").join(u' ').toStdString();
    expectPrompt(times, before);
    EXPECT_GT(written, 0) << "nothing was ever written";
    report(QStringLiteral("kill -9 x %1 while exports are written").arg(rounds(kills)),
           QStringLiteral("none, the old one or a whole one; nothing is left after an hour"),
           QStringLiteral("all whole, %1 files left at first, %2, %3 wrote")
               .arg(left.size())
               .arg(summary(times))
               .arg(written));
}

}  // namespace
}  // namespace vantor::kills_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "e2e/program_fixture.h"

/// The main thread waits for no disk: whatever is done with the program, after its first frame that
/// thread opens, looks at, reads and writes no file. The kernel's own account of its calls says so.
/// (Closing what another thread opened and wrote waits for nothing.)
namespace vantor::main_thread_files_test {
namespace {

struct Exception {
    const char* path;  ///< a pattern
    const char* why;
};

/// What libraries beneath the program read there, each file once.
constexpr std::array exceptions{
    Exception{"/usr/share/X11/locale/.*", "the first key: libX11's table of composed characters"},
    Exception{".*/\\.?XCompose", "the first key: the user's own such table"},
    Exception{".*/(\\.icons|icons|pixmaps|cursors)/.*",
              "a new shape of the pointer: libXcursor's themes"},
    Exception{".*/plugins/[a-z]+", "the first screen reader: the toolkit's extensions"},
    Exception{".*/src/(accessible|iconengines|imageformats)", "and where they may lie"},
    Exception{".*/(fonts|fontconfig)(/.*)?", "a character that no font in use has: fontconfig"},
    Exception{"/etc/(localtime|nsswitch.conf|passwd)", "the C library: time zone, the user's name"},
    Exception{"/usr/share/zoneinfo/.*", "the C library: time zone"},
    Exception{".*/com\\.kestrone\\.Vantor-[0-9a-f]+\\.socket",
              "the end: our own name in the user's runtime folder, which is memory"},
};

/// No file of a disk.
const QRegularExpression& streams() {
    static const QRegularExpression pattern(
        QStringLiteral("^(anon_inode:|socket:|pipe:|UNIX|TCP|NETLINK|/memfd:|/dev/(null|pts/|shm/)|"
                       "/SYSV)"));
    return pattern;
}

bool isException(const QString& path) {
    return std::ranges::any_of(exceptions, [&](const Exception& exception) {
        return QRegularExpression(
                   QRegularExpression::anchoredPattern(QString::fromLatin1(exception.path)))
            .match(path)
            .hasMatch();
    });
}

/// The file that a line of the account tells of: the path it names, else what the descriptor is.
QString fileOf(const QString& line) {
    static const QRegularExpression named(QStringLiteral("^[a-z0-9_]+\\([^\"]*\"([^\"]+)\""));
    static const QRegularExpression described(QStringLiteral("^[a-z0-9_]+\\(-?[0-9]+<([^>]*)>"));
    static const QRegularExpression buffered(
        QStringLiteral("^(read|write|pread64|pwrite64|readv|"
                       "writev|recv|send)"));
    if (!buffered.match(line).hasMatch()) {
        if (const auto match = named.match(line); match.hasMatch()) return match.captured(1);
    }
    return described.match(line).captured(1);
}

class MainThread : public ProgramOnADesktop {
  protected:
    void SetUp() override {
        ProgramOnADesktop::SetUp();
        if (QStandardPaths::findExecutable(QStringLiteral("strace")).isEmpty())
            GTEST_SKIP() << "there is no strace";
        account_ = desktop_.path(QStringLiteral("calls"));
        // The tracer is a process beside it; of its threads only the first is followed.
        program_.emplace(
            desktop_,
            QStringList{QStringLiteral("strace"), QStringLiteral("-D"), QStringLiteral("-ttt"),
                        QStringLiteral("-y"), QStringLiteral("-e"),
                        QStringLiteral("trace=%file,%desc"), QStringLiteral("-o"), account_});
        ASSERT_TRUE(program_->waitForLiveData());
        ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
        firstFrame_ = now();
    }

    static double now() { return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000; }

    /// Each call of the main thread on a file since the first frame.
    std::vector<std::string> calls() const {
        QFile file(account_);
        if (!file.open(QIODevice::ReadOnly)) return {"no account was kept"};
        std::vector<std::string> found;
        int lines = 0;
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine()).trimmed();
            if (line.section(u' ', 0, 0).toDouble() < firstFrame_) continue;
            ++lines;
            const QString call = line.section(u' ', 1);
            if (call.startsWith(QLatin1StringView("close("))) continue;  // was opened elsewhere
            const QString path = fileOf(call);
            if (path.isEmpty() || streams().match(path).hasMatch() || isException(path)) continue;
            found.push_back(call.toStdString());
        }
        if (lines == 0) found.emplace_back("the account says nothing of what came after");
        return found;
    }

    QString account_;
    double firstFrame_ = 0;
};

TEST_F(MainThread, TouchesNoFileWhileTheProgramIsUsed) {
    desktop_.key(QStringLiteral("ctrl+f"));
    desktop_.type(QStringLiteral("vantor"));
    desktop_.key(QStringLiteral("Escape"));
    desktop_.key(QStringLiteral("ctrl+comma"));
    ASSERT_TRUE(eventually(
        [this] { return desktop_.windowsTitled(QStringLiteral("Vantor Settings")) == 1; }));
    desktop_.activate(QStringLiteral("Vantor Settings"));
    desktop_.key(QStringLiteral("Tab"));
    desktop_.key(QStringLiteral("Right"));  // the theme at its right
    ASSERT_TRUE(eventually([this] { return QFile::exists(desktop_.settingsFile()); }))
        << "no setting was changed";
    desktop_.key(QStringLiteral("Escape"));
    ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
    EXPECT_THAT(calls(), testing::IsEmpty());
}

TEST_F(MainThread, TouchesNoFileWhileASnapshotIsExported) {
    desktop_.key(QStringLiteral("ctrl+e"));
    ASSERT_TRUE(eventually([this] { return program_->hasOpenMenu(); })) << "no dialog came up";
    desktop_.key(QStringLiteral("ctrl+a"));
    desktop_.type(desktop_.path(QStringLiteral("here.json")));
    desktop_.key(QStringLiteral("Return"));
    ASSERT_TRUE(
        eventually([this] { return QFile::exists(desktop_.path(QStringLiteral("here.json"))); }));
    EXPECT_THAT(calls(), testing::IsEmpty());
}

TEST_F(MainThread, TouchesNoFileAtTheEnd) {
    desktop_.key(QStringLiteral("ctrl+q"));
    ASSERT_TRUE(program_->waitForEnd(10'000));
    EXPECT_THAT(calls(), testing::IsEmpty());
}

}  // namespace
}  // namespace vantor::main_thread_files_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QStandardPaths>

#include <set>
#include <string>
#include <string_view>

#include "e2e/export_scene.h"

/// Which system calls the program makes, as the kernel's own account says. Each is in a list; so
/// one that a change, a library or a compiler brings is noticed before any kernel is asked to deny
/// it.
namespace vantor::known_calls_test {
namespace {

constexpr char list[] = VANTOR_SOURCE_DIR "/tests/e2e/known_calls.txt";

std::set<std::string> knownCalls() {
    QFile file(QString::fromLatin1(list));
    std::set<std::string> calls;
    if (!file.open(QIODevice::ReadOnly)) return calls;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (!line.isEmpty() && !line.startsWith('#')) calls.insert(line.toStdString());
    }
    return calls;
}

/// The call that a line "PID call(..." tells of; empty for any other line, the rest of an
/// interrupted one included.
std::string callOf(const QByteArray& line) {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789_";
    const std::string text = line.toStdString();
    const auto begin = text.find_first_not_of("0123456789 ");
    if (begin == std::string::npos) return {};
    const auto end = text.find_first_not_of(letters, begin);
    if (end == std::string::npos || end == begin || text[end] != '(') return {};
    return text.substr(begin, end - begin);
}

class KnownCalls : public ExportScene {
  protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable(QStringLiteral("strace")).isEmpty())
            GTEST_SKIP() << "there is no strace";
        ExportScene::SetUp();
    }

    QString account() const { return desktop_.path(QStringLiteral("calls")); }

    /// The tracer is a process beside it, which follows all threads.
    void startTraced() {
        start({QStringLiteral("strace"), QStringLiteral("-D"), QStringLiteral("-f"),
               QStringLiteral("-s"), QStringLiteral("0"), QStringLiteral("-o"), account()});
    }
    void useIt() {
        desktop_.key(QStringLiteral("ctrl+f"));
        desktop_.type(QStringLiteral("open"));
        desktop_.key(QStringLiteral("Tab"));
        desktop_.key(QStringLiteral("Right"));
        desktop_.key(QStringLiteral("Escape"));
        desktop_.key(QStringLiteral("alt+f"));  // in the filter, Ctrl+E is the line's end
        ASSERT_TRUE(eventually([this] { return program_->hasOpenMenu(); }));
        desktop_.key(QStringLiteral("Down"));  // the second entry
        desktop_.key(QStringLiteral("Return"));
        ASSERT_TRUE(eventually([this] { return desktop_.activeTitle() == dialogTitle; }));
        confirm(path("traced"));
        EXPECT_TRUE(eventually([this] { return QFile::exists(path("traced.json")); }));
        desktop_.key(QStringLiteral("ctrl+comma"));
        const auto settings = QStringLiteral("Vantor Settings");
        ASSERT_TRUE(eventually([&] { return desktop_.activeTitle() == settings; }));
        desktop_.key(QStringLiteral("Tab"));
        desktop_.key(QStringLiteral("Right"));
        EXPECT_TRUE(eventually([this] { return QFile::exists(desktop_.settingsFile()); }));
        desktop_.key(QStringLiteral("Escape"));
        RunningProgram second(desktop_);
        EXPECT_TRUE(second.waitForEnd(20'000)) << "the second one goes on";
        desktop_.key(QStringLiteral("ctrl+q"));
        ASSERT_TRUE(program_->waitForEnd(20'000));
    }
    /// Once the tracer has written what came last.
    std::set<std::string> callsMade() const {
        std::set<std::string> calls;
        EXPECT_TRUE(eventually([&] {
            QFile file(account());
            if (!file.open(QIODevice::ReadOnly)) return false;
            bool isWhole = false;
            while (!file.atEnd()) {
                const QByteArray line = file.readLine();
                isWhole = line.contains("+++ exited with");
                if (const std::string call = callOf(line); !call.empty()) calls.insert(call);
            }
            return isWhole;
        }));
        return calls;
    }
};

TEST_F(KnownCalls, AreAllThatTheProgramMakesFromItsStartToItsEnd) {
    const std::set<std::string> known = knownCalls();
    ASSERT_FALSE(known.empty()) << list << " cannot be read";
    startTraced();
    ASSERT_NO_FATAL_FAILURE(useIt());
    const std::set<std::string> made = callsMade();
    EXPECT_GT(made.size(), 40U) << "the account says too little";
    for (const std::string& call : made)
        EXPECT_TRUE(known.contains(call))
            << "the program has not made the system call '" << call << "' so far. Find out who "
            << "makes it (strace -f -k -e trace=" << call << " PROGRAM). If it has to be, add it "
            << "to " << list << "; if not, deny it in denied_calls.cpp.";
}

}  // namespace
}  // namespace vantor::known_calls_test

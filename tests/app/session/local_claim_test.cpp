#include "app/session/local_claim.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <array>
#include <memory>
#include <vector>

#include "app/session/instance_world.h"
#include "app/session/local_socket.h"
#include "app/session/session_places.h"
#include "ui/rendering.h"

namespace vantor::local_claim_test {
namespace {

/// Claims within this process: a lock is one's own only once, even there.
class LocalClaimTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    std::vector<QString> tokens;

    std::unique_ptr<LocalClaim> make(const QString& display = QStringLiteral(":0")) {
        return std::make_unique<LocalClaim>(
            folder.path(), display,
            [this](const Activation& asked) { tokens.push_back(asked.token); });
    }
    static ClaimOutcome claim(LocalClaim& which, int milliseconds = 50) {
        return which.claim({}, QDeadlineTimer(milliseconds));
    }
    QByteArray path(const char* ending) const {
        const auto names = QDir(folder.path())
                               .entryList({QLatin1Char('*') + QLatin1String(ending)},
                                          QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        return names.isEmpty() ? QByteArray() : QFile::encodeName(folder.filePath(names.first()));
    }
};

TEST_F(LocalClaimTest, EachDisplayHasItsOwn) {
    const auto first = make();
    const auto other = make(QStringLiteral("wayland-1"));
    EXPECT_EQ(claim(*first), ClaimOutcome::owned);
    EXPECT_EQ(claim(*other), ClaimOutcome::owned);
    const auto again = make();
    EXPECT_EQ(claim(*again), ClaimOutcome::noAnswer) << "nothing runs this process's loop";
}

TEST_F(LocalClaimTest, OnlyTheUserMayTouchWhatItLeaves) {
    const auto first = make();
    ASSERT_EQ(claim(*first), ClaimOutcome::owned);
    struct stat found {};
    ASSERT_EQ(::stat(path(".lock").constData(), &found), 0);
    EXPECT_EQ(found.st_mode & 0777, 0600u);
}

TEST_F(LocalClaimTest, ASocketThatACrashedProgramHasLeftIsReplaced) {
    auto crashed = make();
    ASSERT_EQ(claim(*crashed), ClaimOutcome::owned);
    const QByteArray socket = path(".socket");
    crashed.reset();
    ASSERT_TRUE(QFile::exists(QFile::decodeName(path(".lock"))));
    { const FileDescriptor left = listeningAt(socket); }
    ASSERT_FALSE(connectedTo(socket)) << "nobody listens there any more";
    const auto next = make();
    EXPECT_EQ(claim(*next), ClaimOutcome::owned);
    EXPECT_TRUE(connectedTo(socket));
}

TEST_F(LocalClaimTest, ItsEndLeavesNoSocket) {
    auto first = make();
    ASSERT_EQ(claim(*first), ClaimOutcome::owned);
    first.reset();
    EXPECT_EQ(path(".socket"), QByteArray());
}

TEST_F(LocalClaimTest, WhereNothingCanBeKeptItIsUnavailable) {
    LocalClaim nowhere(folder.filePath(QStringLiteral("missing")), {}, {});
    EXPECT_EQ(claim(nowhere), ClaimOutcome::unavailable);
    const QString deep = folder.filePath(QString(120, u'd'));
    ASSERT_TRUE(QDir().mkpath(deep));
    LocalClaim tooLong(deep, {}, {});
    EXPECT_EQ(claim(tooLong), ClaimOutcome::unavailable) << "no address is as long as that";
}

TEST_F(LocalClaimTest, ALockThatIsALinkIsNotFollowed) {
    auto first = make();
    ASSERT_EQ(claim(*first), ClaimOutcome::owned);
    first.reset();
    const QString lock = QFile::decodeName(path(".lock"));
    const QString target = folder.filePath(QStringLiteral("target"));
    QFile::remove(lock);
    ASSERT_TRUE(QFile::link(target, lock));
    EXPECT_EQ(claim(*make()), ClaimOutcome::unavailable);
    EXPECT_FALSE(QFile::exists(target));
}

/// What anything that finds the socket may say.
class TalkTest : public LocalClaimTest {
  protected:
    void SetUp() override { ASSERT_EQ(claim(*first), ClaimOutcome::owned); }

    FileDescriptor talker() const { return connectedTo(path(".socket")); }
    static bool say(const FileDescriptor& to, const QByteArray& bytes) {
        return ::send(to.get(), bytes.constData(), static_cast<size_t>(bytes.size()), 0) ==
               bytes.size();
    }
    /// What it is answered until it is hung up on; "(nothing)" if neither happens.
    static QByteArray answerTo(const FileDescriptor& from) {
        QElapsedTimer patience;
        patience.start();
        QByteArray answer;
        while (!patience.hasExpired(10'000)) {
            QCoreApplication::processEvents();
            pollfd waiting{from.get(), POLLIN, 0};
            if (::poll(&waiting, 1, 5) <= 0) continue;
            char byte = 0;
            if (::recv(from.get(), &byte, 1, 0) <= 0) return answer;
            answer += byte;
        }
        return "(nothing)";
    }
    QByteArray answerTo(const QByteArray& bytes) const {
        const FileDescriptor socket = talker();
        EXPECT_TRUE(say(socket, bytes));
        return answerTo(socket);
    }

    std::unique_ptr<LocalClaim> first = make();
};

TEST_F(TalkTest, ARequestIsPromisedAndTold) {
    EXPECT_EQ(answerTo("activate some-token\n"), "+");
    EXPECT_THAT(tokens, testing::ElementsAre(QStringLiteral("some-token")));
    EXPECT_EQ(answerTo("activate \n"), "+");
    EXPECT_THAT(tokens, testing::ElementsAre(QStringLiteral("some-token"), QString()));
}

TEST_F(TalkTest, ARequestInPiecesIsOneToo) {
    const FileDescriptor socket = talker();
    for (const char byte : QByteArray("activate a b\n")) {
        ASSERT_TRUE(say(socket, QByteArray(1, byte)));
        settleEvents();
    }
    EXPECT_EQ(answerTo(socket), "+");
    EXPECT_THAT(tokens, testing::ElementsAre(QStringLiteral("a b")));
}

TEST_F(TalkTest, WhoeverSaysAnythingElseIsHungUpOn) {
    for (const QByteArray& bytes :
         {QByteArray("\n"), QByteArray("quit\n"), QByteArray("ACTIVATE x\n"),
          QByteArray("activate\n"), QByteArray(" activate x\n"), QByteArray(64, '\0') + '\n',
          QByteArray("\xff\xfe\n"), QByteArray("GET / HTTP/1.1\r\n\r\n"), QByteArray(2000, 'x')}) {
        EXPECT_EQ(answerTo(bytes), "") << bytes.left(20).toStdString();
    }
    EXPECT_THAT(tokens, testing::IsEmpty());
}

TEST_F(TalkTest, AnAbsurdTokenIsNone) {
    EXPECT_EQ(answerTo("activate " + QByteArray(600, 'x') + '\n'), "+");
    EXPECT_EQ(answerTo("activate \x01\x02\n"), "+");
    EXPECT_EQ(answerTo("activate caf\xc3\xa9\n"), "+");
    EXPECT_THAT(tokens, testing::Each(QString()));
}

TEST_F(TalkTest, WhoeverNeverEndsIsHungUpOn) {
    const FileDescriptor socket = talker();
    const QByteArray more(512, 'x');
    int sent = 0;
    QElapsedTimer patience;
    patience.start();
    while (::send(socket.get(), more.constData(), 512, MSG_DONTWAIT) > 0 && sent < 10'000 &&
           !patience.hasExpired(10'000)) {
        ++sent;
        settleEvents();
    }
    EXPECT_LT(sent, 10);
    EXPECT_EQ(answerTo("activate still-there\n"), "+");
}

TEST_F(TalkTest, WhoeverIsSilentIsHungUpOnAfterAWhile) {
    EXPECT_EQ(answerTo(talker()), "");
}

TEST_F(TalkTest, WhoeverLeavesAtOnceIsForgotten) {
    for (int i = 0; i < 100; ++i) {
        talker();
        settleEvents();
    }
    EXPECT_EQ(answerTo("activate still-there\n"), "+");
}

TEST_F(TalkTest, ManyThatSayNothingAreHungUpOnAtOnce) {
    std::vector<FileDescriptor> silent;
    for (std::size_t i = 0; i < ActivationServer::maxTalkers; ++i) {
        silent.push_back(talker());
        settleEvents();
    }
    EXPECT_EQ(answerTo(talker()), "");
    silent.clear();
    settleEvents();
    EXPECT_EQ(answerTo("activate still-there\n"), "+");
}

class SessionPlacesTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* const name : names) {
            former.push_back(qEnvironmentVariable(name));
            qunsetenv(name);
        }
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
    }
    void TearDown() override {
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (former[i].isNull())
                qunsetenv(names[i]);
            else
                qputenv(names[i], former[i].toLocal8Bit());
        }
    }

    static constexpr std::array names{"XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS", "DISPLAY",
                                      "WAYLAND_DISPLAY", "TMPDIR"};
    std::vector<QString> former;
    QTemporaryDir folder;
};

TEST_F(SessionPlacesTest, ABusIsWhatTheEnvironmentTellsOfThisMachine) {
    EXPECT_EQ(utf8(sessionBusAddress()), "");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "tcp:host=example.org;unix:path=/a;unix:abstract=b");
    EXPECT_EQ(utf8(sessionBusAddress()), "unix:path=/a;unix:abstract=b");
    for (const char* const address : {"autolaunch:", "tcp:host=localhost", "unixexec:path=x"}) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        EXPECT_EQ(utf8(sessionBusAddress()), "");
    }
}

TEST_F(SessionPlacesTest, OrTheSocketWhereItUsuallyIs) {
    QFile file(folder.filePath(QStringLiteral("bus")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(utf8(sessionBusAddress()), "") << "a file is no bus";
    file.remove();
    const FileDescriptor bus = listeningAt(QFile::encodeName(file.fileName()));
    EXPECT_EQ(sessionBusAddress(), QStringLiteral("unix:path=") + file.fileName());
}

TEST_F(SessionPlacesTest, AFolderOfTemporaryFilesThatIsTheUsersAloneIsUsedAsItIs) {
    QTemporaryDir temporary;
    qputenv("TMPDIR", QFile::encodeName(temporary.path()) + '/');
    qunsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ(privateRuntimeFolder(), temporary.path());
    ASSERT_EQ(::chmod(QFile::encodeName(temporary.path()).constData(), 0750), 0);
    EXPECT_NE(privateRuntimeFolder(), temporary.path());
}

TEST_F(SessionPlacesTest, AFolderThatOthersMayEnterIsNotUsed) {
    EXPECT_EQ(privateRuntimeFolder(), folder.path());
    QTemporaryDir temporary;
    ASSERT_EQ(::chmod(QFile::encodeName(temporary.path()).constData(), 0755), 0);
    qputenv("TMPDIR", QFile::encodeName(temporary.path()));
    const QString own = temporary.filePath(QStringLiteral("vantor-%1").arg(::geteuid()));
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    EXPECT_EQ(privateRuntimeFolder(), own);
    EXPECT_EQ(privateRuntimeFolder(), own) << "again, now that it is there";
    ASSERT_EQ(::chmod(QFile::encodeName(own).constData(), 0770), 0);
    EXPECT_EQ(privateRuntimeFolder(), QString());
    QDir().rmdir(own);
    ASSERT_TRUE(QFile::link(folder.path(), own));
    EXPECT_EQ(privateRuntimeFolder(), QString()) << "nor a link to one";
    qputenv("XDG_RUNTIME_DIR", "relative");
    EXPECT_EQ(privateRuntimeFolder(), QString());
}

TEST_F(SessionPlacesTest, TheDisplayIsWithoutItsScreen) {
    EXPECT_EQ(utf8(displayName()), "");
    qputenv("DISPLAY", ":0.1");
    EXPECT_EQ(utf8(displayName()), ":0");
    qputenv("DISPLAY", "host.example:10");
    EXPECT_EQ(utf8(displayName()), "host.example:10");
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_EQ(utf8(displayName()), "wayland-0");
}

}  // namespace
}  // namespace vantor::local_claim_test

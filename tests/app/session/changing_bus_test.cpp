#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <optional>

#include "app/session/instance_world.h"
#include "app/session/local_socket.h"

namespace vantor::changing_bus_test {
namespace {

/// A bus that is there at some times and not at others, always in the same place.
class ABusThatComesAndGoes : public testing::Test {
  protected:
    void SetUp() override { session.set("DBUS_SESSION_BUS_ADDRESS", address()); }

    QString address() const { return QStringLiteral("unix:path=%1/the-bus").arg(session.folder()); }
    void startBus() {
        endBus();
        bus.emplace(address());
        ASSERT_FALSE(bus->address().isEmpty()) << "dbus-daemon did not start";
    }
    void endBus() {
        bus.reset();
        QFile::remove(session.folder() + QStringLiteral("/the-bus"));
    }
    /// The connection that has the program's name, once one has.
    QString owner() const {
        const QString client = QStringLiteral("looking");
        QString found;
        QElapsedTimer watch;
        watch.start();
        // Each time it is tried again it may take twice as long until it is.
        while (found.isEmpty() && !watch.hasExpired(30'000)) {
            const auto connection = QDBusConnection::connectToBus(address(), client);
            if (connection.isConnected()) {
                found = connection.interface()
                            ->serviceOwner(QStringLiteral("com.kestrone.Vantor"))
                            .value();
            }
            QDBusConnection::disconnectFromBus(client);
            QThread::msleep(20);
        }
        return found;
    }
    void expectASecondStartToEnd(Start& first, const QProcessEnvironment& how) {
        Start second(how);
        EXPECT_EQ(second.says(), "second");
        ASSERT_TRUE(second.ends());
        EXPECT_EQ(first.says(), "activated");
    }
    QProcessEnvironment withoutBus() const {
        return session.with("DBUS_SESSION_BUS_ADDRESS", QStringLiteral("disabled:"));
    }
    QProcessEnvironment onAnotherDisplay() const {
        return session.with("DISPLAY", QStringLiteral(":77"));
    }

    Session session;
    std::optional<SessionBus> bus;
};

TEST_F(ABusThatComesAndGoes, WhileItIsAwayASecondStartBringsTheFirstForward) {
    startBus();
    Start first(session.environment());
    ASSERT_EQ(first.says(), "first");
    endBus();
    expectASecondStartToEnd(first, session.environment());
}

TEST_F(ABusThatComesAndGoes, WhenItIsBackTheFirstIsThere) {
    startBus();
    Start first(session.environment());
    ASSERT_EQ(first.says(), "first");
    for (int i = 0; i < 2; ++i) {
        startBus();
        expectASecondStartToEnd(first, session.environment());  // joined again or not
        EXPECT_NE(owner(), QString());
        expectASecondStartToEnd(first, onAnotherDisplay());
    }
}

TEST_F(ABusThatComesAndGoes, OneThatComesLateIsJoined) {
    Start first(session.environment());
    ASSERT_EQ(first.says(), "first");
    startBus();
    EXPECT_NE(owner(), QString());
    expectASecondStartToEnd(first, onAnotherDisplay());
}

TEST_F(ABusThatComesAndGoes, TwoStartsThatSeeItDifferentlyAreOneProgram) {
    startBus();
    {
        Start first(session.environment());
        ASSERT_EQ(first.says(), "first");
        expectASecondStartToEnd(first, withoutBus());
    }
    Start first(withoutBus());
    ASSERT_EQ(first.says(), "first");
    expectASecondStartToEnd(first, session.environment());
}

TEST_F(ABusThatComesAndGoes, SeveralStartsWhileItIsReplacedAllEnd) {
    startBus();
    Start first(session.environment());
    ASSERT_EQ(first.says(), "first");
    startBus();
    Start second(session.environment());
    Start third(session.environment());
    EXPECT_EQ(second.says(), "second");
    EXPECT_EQ(third.says(), "second");
}

TEST_F(ABusThatComesAndGoes, OfTwoOnTwoDisplaysTheOtherTakesOverWhatTheFirstLeaves) {
    Start one(session.environment());
    ASSERT_EQ(one.says(), "first");
    Start other(onAnotherDisplay());
    ASSERT_EQ(other.says(), "first") << "there is no bus to meet on";
    startBus();
    const QString before = owner();
    ASSERT_NE(before, QString());
    one.send(SIGTERM);
    ASSERT_TRUE(one.ends());
    EXPECT_NE(owner(), QString());
    expectASecondStartToEnd(other, onAnotherDisplay());
    expectASecondStartToEnd(other, session.environment());
}

TEST_F(ABusThatComesAndGoes, ThePlaceOfOneThatHungIsTakenOnceItIsGone) {
    Start hanging(withoutBus(), QStringLiteral("hanging"));
    ASSERT_EQ(hanging.says(), "first");
    auto impatient = withoutBus();
    impatient.insert(QStringLiteral("PATIENCE_OF_INSTANCE"), QStringLiteral("50"));
    Start next(impatient);
    ASSERT_EQ(next.says(), "first");
    hanging.send(SIGKILL);
    ASSERT_TRUE(hanging.ends());
    QElapsedTimer watch;
    watch.start();
    const auto isListening = [this] {
        const QDir folder(session.folder());
        const auto sockets = folder.entryList({QStringLiteral("*.socket")}, QDir::System);
        return !sockets.isEmpty() &&
               connectedTo(QFile::encodeName(folder.filePath(sockets.first())));
    };
    while (!isListening() && !watch.hasExpired(30'000))
        QThread::msleep(20);
    expectASecondStartToEnd(next, withoutBus());
}

}  // namespace
}  // namespace vantor::changing_bus_test

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFile>

#include <optional>

#include "app/session/instance_world.h"

#include "e2e/program_fixture.h"

/// Starting twice, ending by signal, and what lasts from run to run.
namespace vantor::lifecycle_test {
namespace {

class Lifecycle : public ProgramOnADesktop {
  protected:
    QString tool(const QStringList& arguments) const {
        return desktop_.run(QStringLiteral("xdotool"), arguments);
    }
    bool isIconified() {
        return desktop_
            .run(QStringLiteral("xprop"),
                 {QStringLiteral("-id"), program_->window(), QStringLiteral("WM_STATE")})
            .contains(QStringLiteral("Iconic"));
    }
    void expectASecondStartBringsItForward() {
        start();
        tool({QStringLiteral("windowminimize"), program_->window()});
        ASSERT_TRUE(eventually([this] { return isIconified(); }));
        RunningProgram second(desktop_);
        EXPECT_TRUE(second.waitForEnd(20'000)) << "the second one goes on";
        EXPECT_EQ(second.exitStatus(), 0);
        EXPECT_TRUE(eventually([this] { return !isIconified(); }));
        EXPECT_TRUE(eventually([this] { return program_->isActive(); }));
        EXPECT_TRUE(program_->isRunning());
    }
};

TEST_F(Lifecycle, ASecondStartBringsTheFirstForwardOverTheSessionBus) {
    ASSERT_FALSE(desktop_.startSessionBus().isEmpty());
    expectASecondStartBringsItForward();
}

TEST_F(Lifecycle, ASecondStartBringsTheFirstForwardWithoutAnyBus) {
    expectASecondStartBringsItForward();
}

TEST_F(Lifecycle, ASecondStartBringsTheFirstForwardWhileTheBusIsAwayAndOnceItIsBack) {
    const QString address = QStringLiteral("unix:path=") + desktop_.path(QStringLiteral("bus"));
    const QStringList onThatBus{QStringLiteral("env"),
                                QStringLiteral("DBUS_SESSION_BUS_ADDRESS=") + address};
    std::optional<SessionBus> bus(address);
    ASSERT_FALSE(bus->address().isEmpty());
    program_.emplace(desktop_, onThatBus);
    ASSERT_TRUE(program_->waitForLiveData());
    const auto endBus = [&] {
        bus.reset();
        QFile::remove(desktop_.path(QStringLiteral("bus")));
    };
    const auto expectOneProgram = [&](const char* when) {
        SCOPED_TRACE(when);
        tool({QStringLiteral("windowminimize"), program_->window()});
        ASSERT_TRUE(eventually([this] { return isIconified(); }));
        RunningProgram second(desktop_, onThatBus);
        EXPECT_TRUE(second.waitForEnd(20'000)) << "the second one goes on";
        EXPECT_EQ(second.exitStatus(), 0);
        EXPECT_TRUE(eventually([this] { return !isIconified(); }));
        EXPECT_EQ(desktop_.windowsTitled(QStringLiteral("Vantor")), 1);
        EXPECT_TRUE(program_->isRunning());
    };
    const auto isOnTheBus = [&] {
        const QString name = QStringLiteral("looking");
        const auto connection = QDBusConnection::connectToBus(address, name);
        const bool isThere =
            connection.isConnected() &&
            connection.interface()->isServiceRegistered(QStringLiteral("com.kestrone.Vantor"));
        QDBusConnection::disconnectFromBus(name);
        return isThere;
    };
    endBus();
    expectOneProgram("while it is away");
    bus.emplace(address);
    EXPECT_TRUE(eventually(isOnTheBus, 60'000)) << "the first has not come back to it";
    expectOneProgram("once it is back");
}

TEST_F(Lifecycle, AfterTheEndOfTheFirstAnotherOneStarts) {
    start();
    desktop_.key(QStringLiteral("ctrl+q"));
    ASSERT_TRUE(program_->waitForEnd(3000));
    start();
    EXPECT_TRUE(program_->isRunning());
}

TEST_F(Lifecycle, ASignalToEndIsAnOrderlyEnd) {
    start();
    program_->terminate();
    ASSERT_TRUE(program_->waitForEnd(3000));
    EXPECT_TRUE(program_->endedNormally());
    EXPECT_EQ(program_->exitStatus(), 0);
}

TEST_F(Lifecycle, TheWindowOpensWhereAndAsLargeAsItWas) {
    start();
    const auto size = [&](const char* command, int x, int y) {
        tool({QString::fromLatin1(command), program_->window(), QString::number(x),
              QString::number(y)});
    };
    size("windowsize", 900, 640);
    size("windowmove", 210, 130);
    const QSize wanted(900, 640);
    ASSERT_TRUE(eventually([&] { return program_->windowArea().size() == wanted; }));
    const QRect before = program_->windowArea();
    desktop_.key(QStringLiteral("ctrl+q"));
    ASSERT_TRUE(program_->waitForEnd(3000));
    start();
    EXPECT_TRUE(eventually([&] { return program_->windowArea() == before; }))
        << program_->windowArea().x() << ',' << program_->windowArea().y() << ' '
        << program_->windowArea().width() << 'x' << program_->windowArea().height();
}

}  // namespace
}  // namespace vantor::lifecycle_test

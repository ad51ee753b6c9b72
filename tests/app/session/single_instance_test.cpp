#include "app/session/single_instance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QFileInfo>

#include <memory>
#include <optional>
#include <vector>

#include "app/session/instance_world.h"

namespace vantor::single_instance_test {
namespace {

/// Whether there is a session bus is all that differs: what the user meets is the same.
class SingleInstanceTest : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        if (!GetParam()) return;
        bus.emplace();
        ASSERT_FALSE(bus->address().isEmpty()) << "dbus-daemon did not start";
        session.set("DBUS_SESSION_BUS_ADDRESS", bus->address());
    }

    Session session;
    std::optional<SessionBus> bus;
};

INSTANTIATE_TEST_SUITE_P(Sessions, SingleInstanceTest, testing::Bool(), [](const auto& run) {
    return std::string(run.param ? "WithABus" : "WithoutABus");
});

TEST_P(SingleInstanceTest, ASecondStartBringsTheFirstForwardAndEnds) {
    Start first(session.environment());
    ASSERT_EQ(first.says(), "first");
    for (int i = 0; i < 3; ++i) {
        Start second(session.environment());
        EXPECT_EQ(second.says(), "second");
        ASSERT_TRUE(second.ends());
        EXPECT_EQ(second.status(), 0);
        EXPECT_EQ(first.says(), "activated");
    }
}

TEST_P(SingleInstanceTest, HandsItsTokenOver) {
    Start first(session.environment());
    ASSERT_EQ(first.says(), "first");
    const Start wayland(session.with("XDG_ACTIVATION_TOKEN", QStringLiteral("token-17")));
    EXPECT_EQ(first.says(), "activated token-17");
    const Start x11(session.with("DESKTOP_STARTUP_ID", QStringLiteral("launcher/1-2_TIME99")));
    EXPECT_EQ(first.says(), "activated launcher/1-2_TIME99");
    const Start absurd(session.with("XDG_ACTIVATION_TOKEN", QString(100'000, u'x')));
    EXPECT_EQ(first.says(), "activated");
    const Start twoLines(session.with("XDG_ACTIVATION_TOKEN", QStringLiteral("a\nactivate b")));
    EXPECT_EQ(first.says(), "activated");
}

TEST_P(SingleInstanceTest, HandsOverWhatItWasStartedForWithItsToken) {
    session.set("XDG_ACTIVATION_TOKEN", QStringLiteral("t"));
    Start first(session.environment());
    ASSERT_EQ(first.says(), "first");
    for (const char* const action :
         {"pause", "resume", "refresh", "export", "settings", "background"}) {
        Start second(session.with("ACTION_OF_INSTANCE", QString::fromLatin1(action)));
        EXPECT_EQ(second.says(), "second");
        EXPECT_EQ(first.says(), action + QByteArray(" t"));
    }
}

TEST_P(SingleInstanceTest, OfManyThatStartTogetherOneRemains) {
    std::vector<std::unique_ptr<Start>> starts;
    for (int i = 0; i < 4; ++i)
        starts.push_back(std::make_unique<Start>(session.environment()));
    int firsts = 0;
    for (const auto& start : starts) {
        if (start->says() == "first") {
            ++firsts;
        } else {
            EXPECT_TRUE(start->ends());
        }
    }
    EXPECT_EQ(firsts, 1);
}

TEST_P(SingleInstanceTest, AfterItsEndTheNextIsTheFirst) {
    for (const int number : {SIGTERM, SIGKILL}) {
        Start program(session.environment());
        ASSERT_EQ(program.says(), "first") << "whatever the one before has left behind";
        program.send(number);
        ASSERT_TRUE(program.ends());
    }
    Start last(session.environment());
    EXPECT_EQ(last.says(), "first");
}

TEST_P(SingleInstanceTest, WhoIsAskedAndEndsLeavesItsPlace) {
    Start hanging(session.environment(), QStringLiteral("hanging"));
    ASSERT_EQ(hanging.says(), "first");
    Start next(session.environment());
    ASSERT_FALSE(next.saysAnythingWithin(300)) << "it waits for the answer";
    hanging.send(SIGKILL);
    EXPECT_EQ(next.says(), "first");
    Start third(session.environment());
    EXPECT_EQ(third.says(), "second") << "the place is taken again";
}

TEST_P(SingleInstanceTest, OneThatHangsKeepsNobodyFromStarting) {
    Start hanging(session.environment(), QStringLiteral("hanging"));
    ASSERT_EQ(hanging.says(), "first");
    QElapsedTimer watch;
    watch.start();
    Start next(session.withUsualPatience());
    EXPECT_EQ(next.says(), "first");
    EXPECT_GE(watch.elapsed(), 1000);
    EXPECT_LT(watch.elapsed(), 15'000);
}

TEST_P(SingleInstanceTest, OneThatIsStoppedKeepsNobodyFromStarting) {
    Start stopped(session.environment());
    ASSERT_EQ(stopped.says(), "first");
    stopped.send(SIGSTOP);
    Start next(session.withUsualPatience());
    EXPECT_EQ(next.says(), "first");
}

TEST(SingleInstanceOnTheBus, EachBusHasItsOwn) {
    const SessionBus one;
    const SessionBus other;
    Session session;
    session.set("DBUS_SESSION_BUS_ADDRESS", one.address());
    Start first(session.environment());
    ASSERT_EQ(first.says(), "first");
    Start otherDisplay(session.with("DISPLAY", QStringLiteral(":77")));
    EXPECT_EQ(otherDisplay.says(), "second") << "one a bus";
    EXPECT_EQ(first.says(), "activated");
    Start otherBus(session.with("DBUS_SESSION_BUS_ADDRESS", other.address()));
    EXPECT_EQ(otherBus.says(), "second") << "one a display";
    EXPECT_EQ(first.says(), "activated");
    session.set("DBUS_SESSION_BUS_ADDRESS", other.address());
    Start elsewhere(session.with("DISPLAY", QStringLiteral(":77")));
    EXPECT_EQ(elsewhere.says(), "first");
}

TEST(SingleInstanceOnTheBus, AddressesThatLeadElsewhereAreNotFollowed) {
    for (const QString& address :
         {QStringLiteral("tcp:host=127.0.0.1,port=1"), QStringLiteral("autolaunch:"),
          QStringLiteral("unixexec:path=/bin/false"), QStringLiteral("disabled:"),
          QStringLiteral("rubbish"), QStringLiteral("unix:path=/nonexistent/bus")}) {
        Session session;
        session.set("DBUS_SESSION_BUS_ADDRESS", address);
        Start first(session.environment());
        ASSERT_EQ(first.says(), "first") << address.toStdString();
        Start second(session.environment());
        EXPECT_EQ(second.says(), "second") << "by the socket; " << address.toStdString();
    }
}

/// What any program on the bus may say.
class ApplicationOnTheBus : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_FALSE(bus.address().isEmpty());
        session.set("DBUS_SESSION_BUS_ADDRESS", bus.address());
        first.emplace(session.environment());
        ASSERT_EQ(first->says(), "first");
        ASSERT_TRUE(client.isConnected());
    }
    void TearDown() override { QDBusConnection::disconnectFromBus(QStringLiteral("client")); }

    QDBusMessage call(const char* method, const QList<QVariant>& arguments,
                      const char* interface = "org.freedesktop.Application",
                      const char* path = "/com/kestrone/Vantor") {
        auto message = QDBusMessage::createMethodCall(QStringLiteral("com.kestrone.Vantor"),
                                                      QLatin1String(path), QLatin1String(interface),
                                                      QLatin1String(method));
        message.setArguments(arguments);
        return client.call(message, QDBus::Block, 10'000);
    }

    Session session;
    SessionBus bus;
    std::optional<Start> first;
    QDBusConnection client = QDBusConnection::connectToBus(bus.address(), QStringLiteral("client"));
    const QVariantMap none{};
};

TEST_F(ApplicationOnTheBus, AnswersAsAnApplicationDoes) {
    EXPECT_EQ(call("Activate", {none}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(first->says(), "activated");
    EXPECT_EQ(call("Open", {QStringList{QStringLiteral("file:///etc/passwd")}, none}).type(),
              QDBusMessage::ReplyMessage);
    const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("by-action")}};
    EXPECT_EQ(call("ActivateAction", {QStringLiteral("export"), QVariantList(), data}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(first->says(), "export by-action") << "and nothing for the files";
}

TEST_F(ApplicationOnTheBus, RefusesActionsThatItDoesNotHave) {
    const auto action = [this](const QString& name, const QVariantList& parameters) {
        return call("ActivateAction", {name, parameters, none}).type();
    };
    for (const QString& name : {QStringLiteral("new"), QStringLiteral("Pause"), QString(),
                                QStringLiteral("quit"), QString(1'000'000, u'p')})
        EXPECT_EQ(action(name, {}), QDBusMessage::ErrorMessage) << name.left(9).toStdString();
    EXPECT_EQ(action(QStringLiteral("pause"), {42}), QDBusMessage::ErrorMessage)
        << "none has a parameter";
    EXPECT_EQ(action(QStringLiteral("pause"), {}), QDBusMessage::ReplyMessage);
    EXPECT_EQ(first->says(), "pause") << "and nothing for the others";
}

TEST_F(ApplicationOnTheBus, LooksAtNoMoreOfAMessageThanADesktopSends) {
    QVariantMap many;
    for (int i = 0; i < 50'000; ++i)
        many.insert(QStringLiteral("a%1").arg(i), i);
    many.insert(QStringLiteral("activation-token"), QStringLiteral("late"));
    EXPECT_EQ(call("Activate", {many}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(first->says(), "activated");
}

TEST_F(ApplicationOnTheBus, DescribesItself) {
    const QDBusMessage reply = call("Introspect", {}, "org.freedesktop.DBus.Introspectable");
    const QString text = reply.arguments().value(0).toString();
    EXPECT_TRUE(text.contains(QStringLiteral("ActivateAction"))) << text.toStdString();
}

TEST_F(ApplicationOnTheBus, RefusesWhatItDoesNotKnow) {
    const QList<QVariant> empty{none};
    EXPECT_EQ(call("Activate", {}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("Activate", {QStringLiteral("text")}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("Quit", empty).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("Activate", empty, "com.example.Other").type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("Activate", empty, "org.freedesktop.Application", "/other").type(),
              QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("Activate", empty).type(), QDBusMessage::ReplyMessage) << "and goes on";
}

TEST_F(ApplicationOnTheBus, TakesNothingForATokenThatIsNone) {
    const auto key = QStringLiteral("activation-token");
    for (const QVariant& value :
         {QVariant(42), QVariant(QString(1'000'000, u'x')), QVariant(QStringLiteral("a\nb")),
          QVariant(QStringList{QStringLiteral("a")}), QVariant(QStringLiteral("\u00e9"))}) {
        EXPECT_EQ(call("Activate", {QVariantMap{{key, value}}}).type(), QDBusMessage::ReplyMessage);
        EXPECT_EQ(first->says(), "activated");
    }
}

}  // namespace
}  // namespace vantor::single_instance_test

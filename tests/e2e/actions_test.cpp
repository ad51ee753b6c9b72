#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QProcess>

#include <optional>

#include "support/event_patience.h"
#include "support/fake_notifier_tray.h"

#include "e2e/assistive_client.h"
#include "e2e/program_fixture.h"
#include "e2e/spoken_program.h"

/// What the program is asked for from outside: by its options, and by peers on the bus.
namespace vantor::actions_test {
namespace {

const auto dashboardTitle = QStringLiteral("Vantor");
const auto settingsTitle = QStringLiteral("Vantor Settings");
const auto exportTitle = QStringLiteral("Export System Snapshot");

class Actions : public ProgramOnADesktop {
  protected:
    /// Milliseconds; on a machine that is kept busy by others, each look takes a second or two.
    static constexpr int patience = 60'000;

    void startBus() {
        address_ = desktop_.startSessionBus();
        ASSERT_FALSE(address_.isEmpty()) << "no session bus";
    }
    void startTray() { tray_.emplace(address_, FakeNotifierTray::Manner::honest); }
    /// Another start with that option; it hands over and ends.
    void ask(const QString& option) {
        QProcess second;
        second.setProcessEnvironment(desktop_.environment());
        second.start(QStringLiteral(VANTOR_PROGRAM), {option});
        // What the test plays on the bus is asked meanwhile.
        EXPECT_TRUE(
            handleEventsUntil([&] { return second.state() == QProcess::NotRunning; }, patience))
            << option.toStdString() << " goes on";
        EXPECT_EQ(second.exitCode(), 0) << option.toStdString();
    }
    /// The type of the reply to an action.
    QDBusMessage::MessageType act(const QString& name) const {
        const QString connection = QStringLiteral("actions-test");
        auto message = QDBusMessage::createMethodCall(
            QStringLiteral("com.kestrone.Vantor"), QStringLiteral("/com/kestrone/Vantor"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
        message.setArguments({name, QVariantList(), QVariantMap()});
        const auto type = QDBusConnection::connectToBus(address_, connection)
                              .call(message, QDBus::Block, patience)
                              .type();
        QDBusConnection::disconnectFromBus(connection);
        return type;
    }
    bool comes(const QString& title) {
        return eventually([&] { return desktop_.windowsTitled(title) == 1; }, patience);
    }
    bool goes(const QString& title) {
        return eventually([&] { return desktop_.windowsTitled(title) == 0; }, patience);
    }
    bool hasItem() {
        return handleEventsUntil([this] { return !tray_->items().isEmpty(); }, patience);
    }
    /// Through another program that becomes it, for the sake of its last argument.
    void startWith(const QString& option) {
        program_.emplace(desktop_, QStringList{QStringLiteral("sh"), QStringLiteral("-c"),
                                               QStringLiteral("exec \"$0\" ") + option});
    }
    /// What it ends with at once; both its streams are then in `text`.
    int statusOf(const QStringList& arguments, QString& text) const {
        QProcess process;
        QProcessEnvironment environment = desktop_.environment();
        environment.remove(QStringLiteral("DISPLAY"));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(VANTOR_PROGRAM), arguments);
        EXPECT_TRUE(process.waitForFinished(patience));
        text = QString::fromUtf8(process.readAll());
        return process.exitCode();
    }

    QString address_;
    std::optional<FakeNotifierTray> tray_;
};

TEST_F(Actions, OptionsThatOnlyTellNeedNoDisplay) {
    QString text;
    EXPECT_EQ(statusOf({QStringLiteral("--version")}, text), 0);
    EXPECT_EQ(text.toStdString(), "Vantor " VANTOR_VERSION "\n");
    EXPECT_EQ(statusOf({QStringLiteral("--help")}, text), 0);
    EXPECT_TRUE(text.contains(QStringLiteral("--background"))) << text.toStdString();
    EXPECT_EQ(statusOf({QStringLiteral("--nonsense")}, text), 2);
    EXPECT_EQ(text.count(u'\n'), 1) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("'--nonsense'"))) << text.toStdString();
}

TEST_F(Actions, OptionsReachTheRunningProgramWithoutAnyBus) {
    start();
    ask(QStringLiteral("--settings"));
    EXPECT_TRUE(comes(settingsTitle));
    ask(QStringLiteral("--refresh"));
    ask(QStringLiteral("--export"));
    EXPECT_TRUE(comes(exportTitle));
    EXPECT_EQ(desktop_.windowsTitled(dashboardTitle), 1);
    EXPECT_TRUE(program_->isRunning());
}

TEST_F(Actions, OptionsReachTheRunningProgramOverTheBusOnAnotherDisplay) {
    startBus();
    start();
    desktop_.key(QStringLiteral("ctrl+q"));
    ASSERT_TRUE(program_->waitForEnd(patience));
    // It has no lock and socket in common with later starts.
    QTemporaryDir elsewhere;
    program_.emplace(desktop_, QStringList{QStringLiteral("env"),
                                           QStringLiteral("XDG_RUNTIME_DIR=") + elsewhere.path()});
    ASSERT_TRUE(program_->waitForLiveData());
    ask(QStringLiteral("--settings"));
    EXPECT_TRUE(comes(settingsTitle));
}

TEST_F(Actions, PauseAndResumeShowInTheWindow) {
    startBus();
    AssistiveClient client(address_);
    const SpokenProgram spoken(client);
    start();
    constexpr char button[] = "push button";
    ASSERT_TRUE(eventually([&] { return spoken.shows(button, "Pause"); }, patience));
    ask(QStringLiteral("--pause"));
    EXPECT_TRUE(eventually([&] { return spoken.shows(button, "Resume"); }, patience));
    EXPECT_EQ(act(QStringLiteral("pause")), QDBusMessage::ReplyMessage);
    EXPECT_EQ(act(QStringLiteral("resume")), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(eventually([&] { return spoken.shows(button, "Pause"); }, patience));
}

TEST_F(Actions, PeersOnTheBusMayAskForAllOfThem) {
    startBus();
    start();
    for (const char* const action : {"pause", "resume", "refresh"})
        EXPECT_EQ(act(QString::fromLatin1(action)), QDBusMessage::ReplyMessage) << action;
    EXPECT_EQ(act(QStringLiteral("quit")), QDBusMessage::ErrorMessage);
    EXPECT_EQ(act(QStringLiteral("settings")), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(comes(settingsTitle));
    EXPECT_EQ(act(QStringLiteral("export")), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(comes(exportTitle));
}

TEST_F(Actions, StartedInTheBackgroundItIsInTheTrayAlone) {
    startBus();
    startTray();
    startWith(QStringLiteral("--background"));
    ASSERT_TRUE(hasItem());
    EXPECT_EQ(desktop_.windowsTitled(dashboardTitle), 0);
    EXPECT_TRUE(tray_->choose(QStringLiteral("Open Dashboard")));
    EXPECT_TRUE(comes(dashboardTitle));
    ASSERT_TRUE(program_->waitForLiveData());
    ask(QStringLiteral("--background"));
    EXPECT_TRUE(goes(dashboardTitle));
    EXPECT_TRUE(program_->isRunning());
    ask(QStringLiteral("--export"));
    EXPECT_TRUE(comes(dashboardTitle));
    EXPECT_TRUE(comes(exportTitle));
}

TEST_F(Actions, WithoutTheTrayIconTheBackgroundIsTheWindow) {
    QFile settings(desktop_.settingsFile());
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("[General]\nshowMenuBar=false\n");
    settings.close();
    startWith(QStringLiteral("--background"));
    ASSERT_TRUE(program_->waitForLiveData());
    ask(QStringLiteral("--background"));
    EXPECT_EQ(desktop_.windowsTitled(dashboardTitle), 1);
}

TEST_F(Actions, AStartForAnActionDoesIt) {
    startWith(QStringLiteral("--export"));
    EXPECT_TRUE(comes(dashboardTitle));
    EXPECT_TRUE(comes(exportTitle));
}

}  // namespace
}  // namespace vantor::actions_test

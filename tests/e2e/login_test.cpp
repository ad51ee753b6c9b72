#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>

#include "e2e/assistive_client.h"
#include "e2e/program_fixture.h"
#include "e2e/spoken_program.h"

/// Opening the program at login, switched in the settings.
namespace vantor::login_test {
namespace {

constexpr char login[] = "Open at Login";

class Login : public ProgramOnADesktop {
  protected:
    static constexpr int patience = 60'000;

    void SetUp() override {
        ProgramOnADesktop::SetUp();
        const QString bus = desktop_.startSessionBus();
        client_.emplace(bus);
        ASSERT_TRUE(client_->isConnected()) << "no accessibility bus";
        start();
        ASSERT_TRUE(spoken().press("menu item", "Settings"));
    }
    SpokenProgram spoken() const { return SpokenProgram(*client_); }
    QString entry() const {
        return desktop_.path(QStringLiteral("config/autostart/com.kestrone.Vantor.desktop"));
    }
    QByteArray written() const {
        QFile file(entry());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void toggle() const { ASSERT_TRUE(spoken().act("check box", login, "Toggle")); }

    std::optional<AssistiveClient> client_;
};

TEST_F(Login, TheSwitchWritesAnEntryThatStartsThisProgramAndRemovesIt) {
    toggle();
    const QByteArray command = "\nExec=" VANTOR_PROGRAM " --background\n";
    EXPECT_TRUE(eventually([&] { return written().contains(command); }, patience))
        << written().toStdString();
    EXPECT_EQ(
        QFileInfo(entry()).dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{QStringLiteral("com.kestrone.Vantor.desktop")})
        << "nothing else is left there";
    toggle();
    EXPECT_TRUE(eventually([&] { return !QFile::exists(entry()); }, patience));
    EXPECT_TRUE(program_->isRunning());
}

TEST_F(Login, WhatCannotBeWrittenIsSaid) {
    QFile obstacle(desktop_.path(QStringLiteral("config/autostart")));
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly)) << "a file where the folder would be";
    toggle();
    EXPECT_TRUE(eventually([&] { return spoken().shows("label", "Not changed: "); }, patience));
}

}  // namespace
}  // namespace vantor::login_test

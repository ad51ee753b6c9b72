#include "e2e/whole_use.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <algorithm>
#include <utility>

#include "support/event_patience.h"
#include "support/fake_notifier_tray.h"
#include "support/fake_portal.h"

#include "e2e/desktop.h"

namespace vantor {

namespace {

constexpr int usePatience = 30'000;
constexpr char button[] = "push button";
constexpr char choice[] = "radio button";
constexpr char entry[] = "menu item";

}  // namespace

WholeUse::WholeUse(const AssistiveClient& client, Session session)
    : program_(client), session_(std::move(session)) {}

void WholeUse::waitForAllCards() const {
    ASSERT_TRUE(eventually([&] { return program_.hasAnsweredOnAllCards(); }, usePatience))
        << "a card says nothing";
}

void WholeUse::expectStored(const QByteArray& line) const {
    QByteArray stored;
    EXPECT_TRUE(eventually(
        [&] {
            QFile file(session_.settingsFile);
            stored = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
            return stored.contains(line);
        },
        usePatience))
        << line.toStdString() << " is not in\n"
        << stored.toStdString();
}

void WholeUse::changeSettings() const {
    ASSERT_TRUE(program_.press(entry, "Settings"));
    for (const char* const theme : {"Light", "System", "Dark"}) {
        ASSERT_TRUE(program_.act(choice, theme, "Toggle")) << theme;
        expectStored("appearance=" + QByteArray(theme).toLower());
    }
    ASSERT_TRUE(program_.act("spin box", "Chart history", "Increase"));
    expectStored("historyLength=");
}

void WholeUse::sort() const {
    ASSERT_TRUE(program_.act(choice, "Memory", "Toggle"));
    ASSERT_TRUE(program_.act(choice, "CPU", "Toggle"));
}

void WholeUse::exportByTheOwnDialog() const {
    ASSERT_TRUE(QDir().mkpath(session_.documents));
    ASSERT_TRUE(program_.press(entry, "Export Snapshot"));
    ASSERT_TRUE(program_.press(button, "Save"));
    EXPECT_TRUE(eventually(
        [&] {
            return !QDir(session_.documents)
                        .entryList({QStringLiteral("Vantor-20*.json")})
                        .isEmpty();
        },
        usePatience))
        << "the dialog wrote nothing";
}

void WholeUse::exportByAPortal() const {
    FakePortal portal(session_.busAddress);
    ASSERT_TRUE(program_.press(entry, "Export Snapshot"));
    ASSERT_TRUE(handleEventsUntil([&] { return portal.asked() == 1; }));
    const QString file = session_.folder + QStringLiteral("/by-portal.json");
    portal.respond(0, {QStringLiteral("file://") + file});
    EXPECT_TRUE(eventually([&] { return QFile::exists(file); }, usePatience))
        << "the portal's file was not written";
}

void WholeUse::useATray() const {
    FakeNotifierTray tray(session_.busAddress);
    ASSERT_TRUE(handleEventsUntil([&] { return !tray.items().isEmpty(); }, usePatience));
    const auto isOpen = [&] { return program_.shows(button, "Export"); };
    const auto isHidden = [&] { return !isOpen(); };
    ASSERT_TRUE(program_.press(entry, "Close Window"));
    ASSERT_TRUE(eventually(isHidden, usePatience)) << "it is not closed into the tray";
    if (session_.confirm) {
        tray.activate({1000, 850});
        // It takes keys a little later than it has a window.
        ASSERT_TRUE(eventually(
            [&] {
                session_.confirm();
                return isOpen();
            },
            usePatience))
            << "the panel does not lead back";
        ASSERT_TRUE(program_.press(entry, "Close Window"));
        ASSERT_TRUE(eventually(isHidden, usePatience));
    }
    // A user opens the menu again where it was empty, as that of a busy program may be.
    EXPECT_TRUE(
        eventually([&] { return tray.choose(QStringLiteral("Open Dashboard")); }, usePatience))
        << tray.items().size() << " items; the menu has " << tray.menu().children.size()
        << " entries";
    EXPECT_TRUE(eventually(isOpen, usePatience)) << "the tray's menu does not lead back";
}

void WholeUse::quitFromTheMenu() const {
    ASSERT_TRUE(program_.press(entry, "Quit"));
}

}  // namespace vantor

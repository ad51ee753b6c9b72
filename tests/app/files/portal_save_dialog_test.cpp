#include "app/files/portal_save_dialog.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "app/files/portal_world.h"
#include "support/event_patience.h"
#include "ui/rendering.h"

namespace vantor::portal_save_dialog_test {
namespace {

using namespace std::chrono_literals;
using Kind = PortalSaveDialog::Outcome::Kind;
using Manner = FakePortal::Manner;

class PortalSaveDialogTest : public testing::Test {
  protected:
    void begin(std::chrono::milliseconds patience = 20s) {
        dialog = std::make_unique<PortalSaveDialog>(
            PortalSaveDialog::Request{QStringLiteral("Export"), QStringLiteral("a.json"),
                                      QStringLiteral("JSON document"), QStringLiteral("json"),
                                      folder, QStringLiteral("x11:1f")},
            world.questions, world.connector(), patience);
        dialog->begin([this](const PortalSaveDialog::Outcome& outcome) {
            EXPECT_FALSE(isBeginning) << "never from within begin";
            outcomes.push_back(outcome);
        });
        isBeginning = false;
    }
    bool isShown() {
        return handleEventsUntil([this] { return world.portal->asked() == 1; });
    }
    /// The one way in which it has ended.
    std::optional<Kind> end() {
        handleEventsUntil([this] { return !outcomes.empty(); });
        settleEvents();
        return outcomes.size() == 1 ? std::optional(outcomes.front().kind) : std::nullopt;
    }
    std::string fileFor(const char* uri) {
        world.portal->respond(0, {QString::fromLatin1(uri)});
        return end() == Kind::chosen ? outcomes.front().file.native() : "";
    }
    void begunAndShown(Manner manner = Manner::honest) {
        world.startPortal(manner);
        begin();
        ASSERT_TRUE(isShown());
    }

    std::filesystem::path folder;
    PortalWorld world;
    std::unique_ptr<PortalSaveDialog> dialog;
    bool isBeginning = true;
    std::vector<PortalSaveDialog::Outcome> outcomes;
};

TEST_F(PortalSaveDialogTest, AsksForAllOfIt) {
    folder = "/some/where \xff";
    begunAndShown();
    const QVariantMap options = world.portal->options();
    EXPECT_EQ(utf8(world.portal->parentWindow()), "x11:1f");
    EXPECT_EQ(utf8(world.portal->title()), "Export");
    EXPECT_EQ(options.value(QStringLiteral("modal")), QVariant(false));
    EXPECT_EQ(utf8(options.value(QStringLiteral("current_name")).toString()), "a.json");
    EXPECT_EQ(options.value(QStringLiteral("current_folder")).toByteArray(),
              QByteArray("/some/where \xff\0", 14));
    const auto filters = qdbus_cast<QList<PortalFilter>>(options.value(QStringLiteral("filters")));
    ASSERT_EQ(filters.size(), 1);
    EXPECT_EQ(utf8(filters.front().name), "JSON document");
    ASSERT_EQ(filters.front().patterns.size(), 1);
    EXPECT_EQ(filters.front().patterns.front().kind, 0u);
    EXPECT_EQ(utf8(filters.front().patterns.front().text), "*.json");
    EXPECT_TRUE(outcomes.empty());
}

TEST_F(PortalSaveDialogTest, WithoutAFolderTheDesktopChoosesOne) {
    begunAndShown();
    EXPECT_FALSE(world.portal->options().contains(QStringLiteral("current_folder")));
}

TEST_F(PortalSaveDialogTest, GivesTheFileInTheSystemsBytes) {
    begunAndShown();
    EXPECT_EQ(fileFor("file:///home/a%20b/sch%C3%B6n%FF.json"), "/home/a b/sch\xc3\xb6n\xff.json");
    EXPECT_EQ(world.portal->closed(), 0) << "it is over by itself";
}

TEST_F(PortalSaveDialogTest, APortalWithNamesOfItsOwnIsHeardToo) {
    begunAndShown(Manner::oldFashioned);
    settleEvents();
    // What was said before anybody could listen to it is not heard: until its name has arrived.
    handleEventsUntil([this] {
        world.portal->respond(0, {QStringLiteral("file:///a.json")});
        settleEvents();
        return !outcomes.empty();
    });
    EXPECT_EQ(end(), Kind::chosen);
}

TEST_F(PortalSaveDialogTest, CancelledItGivesNone) {
    begunAndShown();
    world.portal->respond(1);
    EXPECT_EQ(end(), Kind::cancelled);
}

TEST_F(PortalSaveDialogTest, AFileThatIsNotOfThisMachineIsNone) {
    begunAndShown();
    world.portal->respond(0, {QStringLiteral("sftp://server/a.json")});
    EXPECT_EQ(end(), Kind::unavailable);
}

TEST_F(PortalSaveDialogTest, EndedByTheDesktopItIsNotAvailable) {
    begunAndShown();
    world.portal->respond(2);
    EXPECT_EQ(end(), Kind::unavailable);
}

TEST_F(PortalSaveDialogTest, WhereThereIsNoneItSaysSo) {
    begin();
    EXPECT_EQ(end(), Kind::unavailable);
}

TEST_F(PortalSaveDialogTest, WhereThereIsNoBusItSaysSo) {
    dialog = std::make_unique<PortalSaveDialog>(
        PortalSaveDialog::Request{}, world.questions,
        [](const QString& name) { return QDBusConnection(name); }, 20s);
    dialog->begin(
        [this](const PortalSaveDialog::Outcome& outcome) { outcomes.push_back(outcome); });
    EXPECT_EQ(end(), Kind::unavailable);
}

TEST_F(PortalSaveDialogTest, OneThatDoesNotAnswerIsWaitedForAMoment) {
    for (const Manner manner :
         {Manner::silent, Manner::chooserless, Manner::refusing, Manner::stuck}) {
        outcomes.clear();
        world.portal.reset();
        world.startPortal(manner);
        begin(manner == Manner::silent || manner == Manner::stuck ? 300ms : 20s);
        EXPECT_EQ(end(), Kind::unavailable) << static_cast<int>(manner);
    }
    EXPECT_TRUE(handleEventsUntil([this] { return world.portal->closed() == 1; }))
        << "what it was stuck in may not come to the screen later";
}

TEST_F(PortalSaveDialogTest, APortalThatGoesWithItsDialogIsNotAvailable) {
    begunAndShown();
    world.portal.reset();
    EXPECT_EQ(end(), Kind::unavailable);
}

TEST_F(PortalSaveDialogTest, ABusThatGoesTakesTheDialogAlong) {
    begunAndShown();
    world.bus.end();
    EXPECT_EQ(end(), Kind::unavailable);
}

TEST_F(PortalSaveDialogTest, DestroyedItIsTakenFromTheScreenAndSaysNothing) {
    begunAndShown();
    dialog.reset();
    EXPECT_TRUE(handleEventsUntil([this] { return world.portal->closed() == 1; }));
    EXPECT_TRUE(outcomes.empty());
}

TEST_F(PortalSaveDialogTest, WhatAStrangerSaysIsNotHeard) {
    begunAndShown();
    world.portal->respondFalsely(world.bus.address(), {QStringLiteral("file:///false.json")});
    EXPECT_EQ(fileFor("file:///true.json"), "/true.json");
}

TEST(FileOfURI, IsOneOfThisMachine) {
    const auto file = [](const char* uri) {
        return fileOfURI(QString::fromUtf8(uri)).value_or("none").native();
    };
    EXPECT_EQ(file("file:///a"), "/a");
    EXPECT_EQ(file("FILE://localhost/a"), "/a");
    EXPECT_EQ(file("file:///sch\xc3\xb6n%25"), "/sch\xc3\xb6n%");
    for (const char* const other :
         {"", "/a", "file:/", "file://", "file://server/a", "http://a/b", "file:///a%",
          "file:///a%0", "file:///a%zz", "file:///a%00b", "file:///a/"})
        EXPECT_EQ(file(other), "none") << other;
}

}  // namespace
}  // namespace vantor::portal_save_dialog_test

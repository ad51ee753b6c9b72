#include <gtest/gtest.h>

#include <QFile>

#include "support/event_patience.h"
#include "support/fake_portal.h"

#include "e2e/export_scene.h"

/// Saving through the dialog of the desktop's portal, which a test plays.
namespace vantor::export_portal_test {
namespace {

class ExportThroughAPortal : public ExportScene {
  protected:
    void SetUp() override {
        ExportScene::SetUp();
        portal_.emplace(desktop_.environment().value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS")));
        start();
        tabTo(exportStop);
        desktop_.key(QStringLiteral("space"));
        ASSERT_TRUE(handleEventsUntil([this] { return portal_->asked() == 1; }));
    }

    std::optional<FakePortal> portal_;
};

TEST_F(ExportThroughAPortal, TheChosenFileIsWritten) {
    const QString handle =
        QStringLiteral("x11:") + QString::number(program_->window().toUInt(nullptr, 16), 16);
    EXPECT_EQ(portal_->parentWindow().toStdString(), handle.toStdString());
    EXPECT_EQ(portal_->title().toStdString(), dialogTitle.toStdString());
    const QString name = portal_->options().value(QStringLiteral("current_name")).toString();
    EXPECT_TRUE(name.startsWith(QStringLiteral("Vantor-20"))) << name.toStdString();
    EXPECT_EQ(desktop_.windowsTitled(dialogTitle), 0) << "there is no second dialog";
    portal_->respond(0, {QStringLiteral("file://") + path("a%20b.json")});
    const QString file = path("a b.json");
    ASSERT_TRUE(eventually([&] { return QFile::exists(file); }));
    EXPECT_EQ(complaintsAbout(file).toStdString(), "");
}

TEST_F(ExportThroughAPortal, CancelledItMakesWayForTheNext) {
    portal_->respond(1);
    EXPECT_TRUE(eventually([this] {
        desktop_.key(QStringLiteral("space"));
        return portal_->asked() == 2;
    }));
}

TEST_F(ExportThroughAPortal, APortalThatVanishesLeavesTheProgramsOwnDialog) {
    portal_.reset();
    ASSERT_TRUE(eventually([this] { return desktop_.activeTitle() == dialogTitle; }));
    const QString file = path("own.json");
    confirm(file);
    ASSERT_TRUE(eventually([&] { return QFile::exists(file); }));
}

TEST_F(ExportThroughAPortal, TheEndOfTheProgramTakesTheDialogAlong) {
    program_->terminate();
    EXPECT_TRUE(handleEventsUntil([this] { return portal_->closed() == 1; }));
    EXPECT_TRUE(program_->waitForEnd(3000));
    EXPECT_EQ(program_->exitStatus(), 0);
}

}  // namespace
}  // namespace vantor::export_portal_test

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include "e2e/export_scene.h"

/// Saving a snapshot, as its user does it.
namespace vantor::export_test {
namespace {

class Export : public ExportScene {};

TEST_F(Export, ByKeyboardItWritesThisMachinesDocument) {
    start();
    tabTo(exportStop);
    openDialog();
    confirm(path("first"));
    const QString file = path("first.json");
    ASSERT_TRUE(eventually([&] { return QFile::exists(file); }));
    EXPECT_EQ(complaintsAbout(file).toStdString(), "");
    EXPECT_EQ(QFileInfo(file).permissions() &
                  (QFile::ReadOther | QFile::WriteOther | QFile::ReadGroup | QFile::WriteGroup),
              QFile::Permissions())
        << "a new file is its owner's alone";
    EXPECT_EQ(QDir(path("")).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(Export, TheProposedNameCanSimplyBeConfirmed) {
    const QString documents = desktop_.path(QStringLiteral("Documents"));
    ASSERT_TRUE(QDir().mkpath(documents));
    start();
    tabTo(exportStop);
    openDialog();
    desktop_.key(QStringLiteral("Return"));
    const auto found = [&] {
        return QDir(documents).entryList({QStringLiteral("Vantor-20*-*-*-*.json")});
    };
    EXPECT_TRUE(eventually([&] { return found().size() == 1; }));
}

TEST_F(Export, OverAnExistingFileItKeepsThePermissions) {
    const QString file = path("old.json");
    write(file, "old");
    const QFile::Permissions permissions =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
    ASSERT_TRUE(QFile::setPermissions(file, permissions));
    const QFile::Permissions before = QFileInfo(file).permissions();
    start();
    tabTo(exportStop);
    openDialog();
    confirmReplacing(file);
    ASSERT_TRUE(eventually([&] { return read(file) != "old"; }));
    EXPECT_EQ(complaintsAbout(file).toStdString(), "");
    EXPECT_EQ(QFileInfo(file).permissions(), before);
}

TEST_F(Export, DuringAPauseItWritesWhatWasReadLast) {
    start();
    tabTo(pauseStop);
    desktop_.key(QStringLiteral("space"));
    tabTo(exportStop - pauseStop);
    openDialog();
    confirm(path("first.json"));
    ASSERT_TRUE(eventually([this] { return !read(path("first.json")).isEmpty(); }));
    // More than one refresh interval later.
    QThread::msleep(1200);
    ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
    openDialog();
    confirm(path("second.json"));
    ASSERT_TRUE(eventually([this] { return !read(path("second.json")).isEmpty(); }));
    EXPECT_EQ(read(path("first.json")), read(path("second.json")));
    EXPECT_EQ(complaintsAbout(path("second.json")).toStdString(), "");
}

TEST_F(Export, TwoQuickActivationsOpenOneDialogAndACancelledOneMakesWayForTheNext) {
    start();
    const QPoint button = tabTo(exportStop);
    desktop_.clickAt(button, 2);
    ASSERT_TRUE(eventually([this] { return desktop_.windowsTitled(dialogTitle) > 0; }));
    QThread::msleep(500);  // a second one would be there by then
    EXPECT_EQ(desktop_.windowsTitled(dialogTitle), 1);
    desktop_.activate(dialogTitle);
    desktop_.key(QStringLiteral("Escape"));
    ASSERT_TRUE(eventually([this] { return desktop_.windowsTitled(dialogTitle) == 0; }));
    ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
    openDialog();
    confirm(path("a.json"));
    EXPECT_TRUE(eventually([this] { return QFile::exists(path("a.json")); }));
}

TEST_F(Export, QuittingWhileTheDialogIsOpenEndsTheProgramWithSuccess) {
    start();
    tabTo(exportStop);
    const QPoint quit = tabTo(quitStop - exportStop);
    desktop_.key(QStringLiteral("shift+Tab"));
    openDialog();
    desktop_.clickAt(quit);
    ASSERT_TRUE(program_->waitForEnd(2000));
    EXPECT_TRUE(program_->endedNormally());
    EXPECT_EQ(program_->exitStatus(), 0);
    EXPECT_TRUE(QDir(path("")).isEmpty());
}

}  // namespace
}  // namespace vantor::export_test

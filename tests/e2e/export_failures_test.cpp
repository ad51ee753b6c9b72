#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <string>

#include "e2e/export_scene.h"

/// Exports that fail: an alert is shown, the old file stays, and the next export works.
namespace vantor::export_failures_test {
namespace {

class FailingExport : public ExportScene {
  protected:
    /// Starts the program in a room of its own: `mounting` is done for it alone, on the folder
    /// "$1", and is gone with it. False when this machine does not allow that.
    bool startWithMount(const QString& mounting) {
        const QString script =
            QStringLiteral("folder=$1; %1 || exit 77; shift; exec \"$@\"").arg(mounting);
        // Not even root may mount in some containers; others may only as root of their own.
        for (const QStringList& allowance : {QStringList(), {QStringLiteral("--map-root-user")}}) {
            QStringList room{QStringLiteral("unshare")};
            room << allowance << QStringLiteral("--mount") << QStringLiteral("--propagation")
                 << QStringLiteral("private") << QStringLiteral("sh") << QStringLiteral("-c")
                 << script << QStringLiteral("sh") << path("");
            QStringList attempt = room.mid(1) << QStringLiteral("true");
            if (QProcess::execute(room.first(), attempt) != 0) continue;
            start(room);
            return true;
        }
        return false;
    }

    /// The folder as the program sees it.
    QString inItsRoom(const char* name) const {
        return QStringLiteral("/proc/%1/root").arg(program_->processId()) + path(name);
    }

    /// Having failed: the alert says why, and can be dismissed by that key.
    void expectAlert(const char* reason, const char* key) {
        EXPECT_EQ(alertText().toStdString(),
                  std::string("\"old.json\" could not be saved. ") + reason);
        dismissAlert(QString::fromLatin1(key));
    }

    void expectNextToWork() {
        const QString file = desktop_.path(QStringLiteral("next.json"));
        openDialog();
        confirm(file);
        ASSERT_TRUE(eventually([&] { return QFile::exists(file); }));
        EXPECT_EQ(complaintsAbout(file).toStdString(), "");
    }
};

TEST_F(FailingExport, ToAFullDiskLeavesTheOldFile) {
    if (!startWithMount(QStringLiteral("mount -t tmpfs -o size=4k none \"$folder\" && "
                                       "printf old > \"$folder/old.json\"")))
        GTEST_SKIP() << "nothing can be mounted here";
    tabTo(exportStop);
    openDialog();
    confirmReplacing(path("old.json"));
    expectAlert("There is not enough space on the disk.", "Escape");
    EXPECT_EQ(read(inItsRoom("old.json")), "old");
    EXPECT_EQ(QDir(inItsRoom("")).entryList(QDir::Files | QDir::Hidden).size(), 1);
    expectNextToWork();
}

TEST_F(FailingExport, IntoAFolderThatCanOnlyBeReadLeavesTheOldFile) {
    write(path("old.json"), "old");
    if (!startWithMount(QStringLiteral("mount --bind \"$folder\" \"$folder\" && "
                                       "mount -o remount,bind,ro \"$folder\"")))
        GTEST_SKIP() << "nothing can be mounted here";
    tabTo(exportStop);
    openDialog();
    confirmReplacing(path("old.json"));
    expectAlert("The disk can only be read.", "Return");
    EXPECT_EQ(read(path("old.json")), "old");
    EXPECT_EQ(QDir(path("")).entryList(QDir::Files | QDir::Hidden).size(), 1);
    expectNextToWork();
}

TEST_F(FailingExport, IntoAFolderThatVanishedMeanwhileIsToldInTheDialog) {
    const QString folder = desktop_.path(QStringLiteral("Documents"));
    ASSERT_TRUE(QDir().mkpath(folder));
    start();
    tabTo(exportStop);
    openDialog();
    ASSERT_TRUE(QDir(folder).removeRecursively());
    desktop_.type(folder + QStringLiteral("/old.json"));
    desktop_.key(QStringLiteral("Return"));
    EXPECT_TRUE(eventually([this] {
        return std::ranges::any_of(client_->walk(QStringLiteral("vantor")), [](const auto& each) {
            return each.name == u"\"old.json\" could not be saved. The folder does not exist.";
        });
    }));
    const QString file = desktop_.path(QStringLiteral("next.json"));
    desktop_.key(QStringLiteral("ctrl+a"));
    confirm(file);
    ASSERT_TRUE(eventually([&] { return QFile::exists(file); }));
    EXPECT_EQ(complaintsAbout(file).toStdString(), "");
}

}  // namespace
}  // namespace vantor::export_failures_test

#include "app/session/hung_folders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <future>
#include <vector>

/// Folders of the user that hang, and what the environment says of them then.
namespace vantor::hung_folders_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class HungFoldersTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* const name : names) {
            former.push_back(qgetenv(name));
            qunsetenv(name);
        }
    }
    void TearDown() override {
        ends.set_value();
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (former[i].isNull())
                qunsetenv(names[i]);
            else
                qputenv(names[i], former[i]);
        }
    }

    /// Those folders hang until the test is over, others answer at once.
    HungFolders findHung(const std::vector<QByteArray>& hung) const {
        const auto hangs = [hung](const QByteArray& folder) {
            return std::ranges::find(hung, folder) != hung.end();
        };
        return HungFolders(
            HungFolders::patience,
            [hangs, end = over](const QByteArray& folder) {
                if (hangs(folder)) end.wait();
            },
            [hangs](const QByteArray& folder, const HungFolders::Answer& answer, auto) {
                if (!hangs(folder)) answer.wait();
            });
    }

    static constexpr std::array names{"HOME",          "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                      "XDG_DATA_DIRS", "XDG_CACHE_HOME",  "XDG_STATE_HOME",
                                      "XAUTHORITY",    "XCURSOR_PATH"};
    std::vector<QByteArray> former;
    std::promise<void> ends;
    const std::shared_future<void> over = ends.get_future().share();
};

TEST_F(HungFoldersTest, HaveNothingChangedWhereAllAnswer) {
    qputenv("HOME", "/home/someone");
    qputenv("XDG_DATA_DIRS", "/home/someone/share:/usr/share");
    const HungFolders hung = findHung({});
    EXPECT_THAT(hung.folders(), IsEmpty());
    hung.leaveOutOfEnvironment();
    EXPECT_EQ(qgetenv("HOME").toStdString(), "/home/someone");
    EXPECT_EQ(qgetenv("XDG_DATA_DIRS").toStdString(), "/home/someone/share:/usr/share");
}

TEST_F(HungFoldersTest, AreLeftOutOfEveryVariable) {
    qputenv("HOME", "/home/someone/");
    qputenv("XDG_CONFIG_HOME", "/home/someone/.config");
    qputenv("XDG_DATA_DIRS", "/home/someone/share:/usr/share:/home/someoneelse");
    qputenv("XAUTHORITY", "/run/someone/Xauthority");
    qputenv("XCURSOR_PATH", "~/.icons:/home/someone/pointers");
    const HungFolders hung = findHung({"/home/someone"});
    EXPECT_THAT(hung.folders(), ElementsAre("/home/someone"));
    hung.leaveOutOfEnvironment();
    EXPECT_EQ(qgetenv("HOME").toStdString(), "/dev/null");
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_CONFIG_HOME"));
    EXPECT_EQ(qgetenv("XDG_DATA_DIRS").toStdString(), "/usr/share:/home/someoneelse");
    EXPECT_EQ(qgetenv("XAUTHORITY").toStdString(), "/run/someone/Xauthority");
    EXPECT_EQ(qgetenv("XCURSOR_PATH").toStdString(), "~/.icons");
}

TEST_F(HungFoldersTest, NeedNotBeTheHomeFolder) {
    qputenv("HOME", "/home/someone");
    qputenv("XDG_CONFIG_HOME", "/net/config");
    qputenv("XDG_CACHE_HOME", "/home/someone/cache");
    const HungFolders hung = findHung({"/net/config"});
    hung.leaveOutOfEnvironment();
    EXPECT_EQ(qgetenv("HOME").toStdString(), "/home/someone");
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_CONFIG_HOME"));
    EXPECT_EQ(qgetenv("XDG_CACHE_HOME").toStdString(), "/home/someone/cache");
}

TEST_F(HungFoldersTest, AreAskedOnceAndByWholePathsOnly) {
    qputenv("HOME", "/");
    qputenv("XDG_CONFIG_HOME", "config");
    qputenv("XDG_DATA_HOME", "/data");
    qputenv("XDG_STATE_HOME", "/data/");
    const auto hung = findHung({"", "/", "config", "/data"});
    EXPECT_THAT(hung.folders(), ElementsAre("/data"));
}

TEST_F(HungFoldersTest, AreNoneThatAreNotThereOrMayNotBeRead) {
    const QTemporaryDir folder;
    qputenv("HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(QStringLiteral("none"))));
    qputenv("XDG_DATA_HOME", "/dev/null");
    EXPECT_THAT(HungFolders(1h).folders(), IsEmpty());
}

}  // namespace
}  // namespace vantor::hung_folders_test

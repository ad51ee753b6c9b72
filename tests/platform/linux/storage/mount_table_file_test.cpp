#include "platform/linux/storage/mount_table_file.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include "support/fake_kernel_tree.h"
#include "support/private_mounts.h"

namespace vantor::mount_table_file_test {
namespace {

using namespace std::chrono_literals;

TEST(MountTableFile, ARecordedTableMayAlwaysHaveChanged) {
    const FakeKernelTree tree;
    MountTableFile file(tree.roots().proc / "self/mountinfo");
    EXPECT_TRUE(file.mayHaveChanged());
    EXPECT_EQ(file.read(), std::nullopt);
    tree.proc("self/mountinfo", "one\n");
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(file.mayHaveChanged());
        EXPECT_EQ(file.read(), "one\n");
    }
    tree.proc("self/mountinfo", "two\n");
    EXPECT_EQ(file.read(), "two\n");
    tree.removeProc("self/mountinfo");
    EXPECT_EQ(file.read(), std::nullopt);
    tree.proc("self/mountinfo", "three\n");
    EXPECT_EQ(file.read(), "three\n");
}

TEST(MountTableFile, TheKernelsCountsAsChangedEveryMinute) {
    MountTableFile::Time now;
    MountTableFile file("/proc/self/mountinfo", [&] { return now; });
    // Others may mount something here at any time.
    bool wasQuiet = false;
    for (int i = 0; i < 50 && !wasQuiet; ++i) {
        EXPECT_TRUE(file.read());
        now += 59s;
        wasQuiet = !file.mayHaveChanged();
    }
    if (!wasQuiet) GTEST_SKIP() << "the mounts of this machine change all the time";
    now += 1s;
    EXPECT_TRUE(file.mayHaveChanged());
}

/// A folder of our own to mount something on.
class MountedFolder {
  public:
    MountedFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "mounted-XXXXXX").string();
        if (::mkdtemp(name.data())) path_ = name;
    }
    MountedFolder(const MountedFolder&) = delete;
    MountedFolder& operator=(const MountedFolder&) = delete;
    ~MountedFolder() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

/// The complaints of a process with mounts of its own.
std::string checkFollowing(const std::string& folder) {
    MountTableFile file("/proc/self/mountinfo");
    std::string complaints;
    const auto expect = [&](bool holds, const char* what) {
        if (!holds) complaints += std::string(what) + "; ";
    };
    const auto lists = [&](const std::string& text) {
        const auto table = file.read();
        return table && table->find(text) != table->npos;
    };
    expect(file.mayHaveChanged(), "a table that was not read yet is known");
    expect(!lists(folder), "the folder is mounted before it is");
    expect(!file.mayHaveChanged(), "a table at rest has changed");
    expect(!file.mayHaveChanged(), "a table at rest has changed since");
    const auto change = [&](const std::string& command) {
        if (!runQuietly(command + " " + quoted(folder))) return false;
        expect(file.mayHaveChanged(), command.c_str());
        return true;
    };
    if (!change("mount -n -t tmpfs none")) return "skip";
    expect(lists(folder + " rw"), "a new mount is not listed");
    expect(!file.mayHaveChanged(), "it is told twice");
    change("mount -n -o remount,ro,bind");
    expect(lists(folder + " ro"), "it is not read-only");
    expect(!file.mayHaveChanged(), "that is told twice");
    change("umount -n");
    expect(!lists(folder), "what went is listed");
    expect(!file.mayHaveChanged(), "that it went is told twice");
    return complaints;
}

TEST(MountTableFile, TheKernelsTellsOfMountsThatComeChangeAndGo) {
    const MountedFolder folder;
    const ChildOutcome outcome = withPrivateMounts([&] { return checkFollowing(folder.path()); });
    if (!outcome.wasPossible || outcome.complaints == "skip")
        GTEST_SKIP() << "mounts of one's own are not allowed here";
    EXPECT_EQ(outcome.complaints, "");
}

}  // namespace
}  // namespace vantor::mount_table_file_test

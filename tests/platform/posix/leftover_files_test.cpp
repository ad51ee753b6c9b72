#include "platform/posix/leftover_files.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <string>

#include "platform/file_descriptor.h"
#include "platform/posix/fake_file_calls.h"
#include "platform/posix/posix_atomic_file_writer.h"
#include "support/temporary_folder.h"

namespace vantor::leftover_files_test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

constexpr std::time_t twoHours = 7200;
const std::string leftName = ".vantor-0123456789abcdef01234567";

void setTime(const fs::path& path, std::time_t time) {
    const timespec both[2] = {{time, 0}, {time, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), both, AT_SYMLINK_NOFOLLOW), 0);
}

class LeftoverFilesTest : public testing::Test {
  protected:
    fs::path leave(const std::string& name, std::time_t age = twoHours) {
        const fs::path path = folder.path() / name;
        writeFile(path, "left");
        setTime(path, ::time(nullptr) - age);
        return path;
    }
    /// What is left in the folder after an export into it.
    std::vector<std::string> afterAnExport() {
        PosixAtomicFileWriter writer(calls);
        EXPECT_EQ(writer.write(folder.path() / "file.json", "new"), std::nullopt);
        EXPECT_EQ(contentOf(folder.path() / "file.json"), "new");
        return folder.names();
    }

    const std::shared_ptr<FakeFileCalls> calls = std::make_shared<FakeFileCalls>();
    const TemporaryFolder folder;
};

TEST_F(LeftoverFilesTest, GoWithTheNextExportIntoTheirFolder) {
    leave(leftName);
    leave(".vantor-ffffffffffffffffffffffff", 3700);
    EXPECT_THAT(afterAnExport(), ElementsAre("file.json"));
}

TEST_F(LeftoverFilesTest, GoWithAnExportThatReplacesAFileToo) {
    leave(leftName);
    writeFile(folder.path() / "file.json", "old");
    EXPECT_THAT(afterAnExport(), ElementsAre("file.json"));
}

TEST_F(LeftoverFilesTest, StayForAnHourAndWhenTheyComeFromTheFuture) {
    leave(leftName, 3500);
    EXPECT_THAT(afterAnExport(), ElementsAre(leftName, "file.json"));
    setTime(folder.path() / leftName, ::time(nullptr) + 100'000);
    EXPECT_THAT(afterAnExport(), ElementsAre(leftName, "file.json"));
}

TEST_F(LeftoverFilesTest, StayWhereSomebodyIsStillWriting) {
    const FileDescriptor writer(::open(leave(leftName).c_str(), O_RDONLY | O_CLOEXEC));
    ASSERT_EQ(::flock(writer.get(), LOCK_EX | LOCK_NB), 0);
    EXPECT_THAT(afterAnExport(), ElementsAre(leftName, "file.json"));
}

TEST_F(LeftoverFilesTest, AreLockedAsLongAsTheyAreWritten) {
    for (const bool hasNamelessFiles : {true, false}) {
        calls->hasNamelessFiles = hasNamelessFiles;
        writeFile(folder.path() / "file.json", "old");
        std::string other = "none";
        calls->onRename = [&](int in, const char* from) {
            const FileDescriptor file(::openat(in, from, O_RDONLY | O_CLOEXEC));
            other = ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 ? "not locked" : "locked";
        };
        afterAnExport();
        EXPECT_EQ(other, "locked") << hasNamelessFiles;
    }
}

TEST_F(LeftoverFilesTest, StayWhereLocksAreNotKnown) {
    calls->errors["lock"] = ENOLCK;
    leave(leftName);
    EXPECT_THAT(afterAnExport(), ElementsAre(leftName, "file.json"));
}

TEST_F(LeftoverFilesTest, AreOnlyFilesOfThatVeryName) {
    const std::vector<std::string> others{
        ".vantor-",     ".vantor-0123456789abcdef0123456",  ".vantor-0123456789abcdef012345678",
        ".vantor-json", ".vantor-0123456789ABCDEF01234567", "vantor-0123456789abcdef01234567"};
    for (const std::string& name : others)
        leave(name);
    EXPECT_EQ(afterAnExport().size(), others.size() + 1);
}

TEST_F(LeftoverFilesTest, AreOrdinaryFilesWithoutAnotherName) {
    const std::time_t then = ::time(nullptr) - twoHours;
    const fs::path target = leave("target");
    const fs::path link = folder.path() / ".vantor-111111111111111111111111";
    fs::create_symlink(target, link);
    setTime(link, then);
    const fs::path twin = folder.path() / ".vantor-222222222222222222222222";
    fs::create_hard_link(target, twin);
    const fs::path pipe = folder.path() / ".vantor-333333333333333333333333";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    setTime(pipe, then);
    const fs::path inner = folder.path() / ".vantor-444444444444444444444444";
    fs::create_directory(inner);
    setTime(inner, then);
    EXPECT_EQ(afterAnExport().size(), 6u);
    EXPECT_EQ(contentOf(target), "left");
}

TEST_F(LeftoverFilesTest, OfAnotherUserStay) {
    const fs::path path = leave(leftName);
    if (::chown(path.c_str(), 1234, 1234) != 0) GTEST_SKIP() << "only root may give files away";
    setTime(path, ::time(nullptr) - twoHours);
    EXPECT_THAT(afterAnExport(), ElementsAre(leftName, "file.json"));
}

TEST_F(LeftoverFilesTest, ThatCannotBeRemovedFailNoExport) {
    leave(leftName);
    calls->errors["remove"] = EACCES;
    EXPECT_THAT(afterAnExport(), ElementsAre(leftName, "file.json"));
    EXPECT_EQ(calls->made["remove"], 1);
}

TEST_F(LeftoverFilesTest, AreNotSoughtInTheWholeOfAHugeFolder) {
    for (char digit = '0'; digit <= '9'; ++digit)
        leave(".vantor-" + std::string(24, digit));
    const FileDescriptor open(::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    LeftoverFiles::remove(*calls, open.get(), ::time(nullptr), 5);
    EXPECT_GE(folder.names().size(), 5u);
    EXPECT_LE(folder.names().size(), 7u) << "a folder and the one that it is in may count";
    LeftoverFiles::remove(*calls, open.get(), ::time(nullptr), 50);
    EXPECT_EQ(folder.names().size(), 0u);
}

}  // namespace
}  // namespace vantor::leftover_files_test

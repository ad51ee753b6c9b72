#include "platform/posix/posix_shared_file.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <string>

#include "platform/file_descriptor.h"
#include "platform/posix/posix_atomic_file_writer.h"
#include "support/temporary_folder.h"

namespace vantor::posix_shared_file_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
namespace fs = std::filesystem;

constexpr std::size_t most = 100;

class PosixSharedFileTest : public testing::Test {
  protected:
    TemporaryFolder folder;
    const fs::path path = folder.path() / "settings.ini";

    static PosixSharedFile at(const fs::path& place) {
        return {place, std::make_shared<PosixAtomicFileWriter>(), 0ms};
    }
    PosixSharedFile file() const { return at(path); }
    static std::string errorOf(const std::optional<DescribedError>& error) {
        return error ? error->description : "";
    }
    /// What another program would be told that asks for the lock now.
    bool isLocked() const {
        const FileDescriptor other(::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY));
        return ::flock(other.get(), LOCK_EX | LOCK_NB) != 0;
    }
};

TEST_F(PosixSharedFileTest, WithoutAFileThereIsNothingToRead) {
    for (const fs::path& place : {path, folder.path() / "none" / "settings.ini"}) {
        const auto reading = at(place).read(most);
        EXPECT_EQ(reading.bytes, std::nullopt);
        EXPECT_EQ(errorOf(reading.error), "");
    }
}

TEST_F(PosixSharedFileTest, ReadsNoMoreThanItIsAskedFor) {
    writeFile(path, std::string(10'000, 'x'));
    EXPECT_EQ(file().read(5000).bytes, std::string(5000, 'x'));
    EXPECT_EQ(file().read(20'000).bytes, std::string(10'000, 'x'));
    EXPECT_EQ(file().read(0).bytes, "");
}

TEST_F(PosixSharedFileTest, WhatIsNoFileIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(errorOf(file().read(most).error),
              "Something that is not an ordinary file has that name.");
    EXPECT_EQ(errorOf(at(folder.path()).read(most).error), "A folder has that name.");
}

TEST_F(PosixSharedFileTest, MakesItsFolderForItsOwnerAlone) {
    const fs::path place = folder.path() / "a" / "b" / "settings.ini";
    EXPECT_EQ(errorOf(at(place).write("x=1\n")), "");
    EXPECT_EQ(contentOf(place), "x=1\n");
    EXPECT_EQ(fs::status(folder.path() / "a").permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(folder.path() / "a" / "b").permissions(), fs::perms::owner_all);
}

TEST_F(PosixSharedFileTest, TellsTheReasonAlone) {
    fs::create_directory(path);
    EXPECT_EQ(errorOf(file().write("x=1\n")), "A folder has that name.");
    writeFile(folder.path() / "wall", "");
    EXPECT_EQ(errorOf(at(folder.path() / "wall" / "a" / "settings.ini").write("")),
              "The place for it is not a folder.");
}

TEST_F(PosixSharedFileTest, PutsItAsideUnderTheNextNameThatIsFree) {
    writeFile(path, "second");
    writeFile(folder.path() / "settings.ini.damaged-1", "first");
    EXPECT_EQ(errorOf(file().putAside()), "");
    EXPECT_THAT(folder.names(), ElementsAre("settings.ini.damaged-1", "settings.ini.damaged-2"));
    EXPECT_EQ(contentOf(folder.path() / "settings.ini.damaged-2"), "second");
}

TEST_F(PosixSharedFileTest, RemovesItAndNothingThatALinkLeadsTo) {
    EXPECT_EQ(errorOf(file().remove()), "") << "there is none";
    EXPECT_EQ(errorOf(at(folder.path() / "none" / "settings.ini").remove()), "");
    writeFile(folder.path() / "real", "kept");
    fs::create_symlink("real", path);
    EXPECT_EQ(errorOf(file().remove()), "");
    EXPECT_THAT(folder.names(), ElementsAre("real"));
    fs::create_directory(path);
    EXPECT_NE(errorOf(file().remove()), "");
}

TEST_F(PosixSharedFileTest, PutsAsideWhatALinkLeadsTo) {
    fs::create_directory(folder.path() / "other");
    writeFile(folder.path() / "other" / "real.ini", "damage");
    fs::create_symlink("other/real.ini", path);
    EXPECT_EQ(errorOf(file().putAside()), "");
    EXPECT_EQ(fs::read_symlink(path), "other/real.ini");
    EXPECT_EQ(contentOf(folder.path() / "other" / "real.ini.damaged-1"), "damage");
    EXPECT_EQ(file().read(most).bytes, std::nullopt);
}

TEST_F(PosixSharedFileTest, KeepsOthersAwayAndLeavesNothingBehind) {
    bool wasLocked = false;
    file().withoutOthers([&] { wasLocked = isLocked(); });
    EXPECT_TRUE(wasLocked);
    EXPECT_FALSE(isLocked());
    EXPECT_THAT(folder.names(), ElementsAre());
}

TEST_F(PosixSharedFileTest, DoesNotWaitForWhoeverKeepsTheLock) {
    const FileDescriptor other(::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_EQ(::flock(other.get(), LOCK_EX), 0);
    int times = 0;
    file().withoutOthers([&] { ++times; });
    EXPECT_EQ(times, 1);
}

TEST_F(PosixSharedFileTest, WithoutAFolderThereIsNobodyToKeepAway) {
    int times = 0;
    at(folder.path() / "none" / "settings.ini").withoutOthers([&] { ++times; });
    EXPECT_EQ(times, 1);
}

}  // namespace
}  // namespace vantor::posix_shared_file_test

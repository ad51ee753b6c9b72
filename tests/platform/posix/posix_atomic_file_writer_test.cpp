#include "platform/posix/posix_atomic_file_writer.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <memory>
#include <string>

#include "platform/posix/fake_file_calls.h"
#include "support/temporary_folder.h"

namespace vantor::posix_atomic_file_writer_test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr uid_t nobody = 65534;

mode_t modeOf(const fs::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

/// On file systems with nameless files and on those without.
class AtomicFileWriting : public testing::TestWithParam<bool> {
  protected:
    AtomicFileWriting() { calls->hasNamelessFiles = GetParam(); }

    /// The error's words, or none.
    std::string write(const fs::path& destination, std::string_view bytes = "new") {
        PosixAtomicFileWriter writer(calls);
        const auto error = writer.write(destination, bytes);
        return error ? error->description : "";
    }

    const std::shared_ptr<FakeFileCalls> calls = std::make_shared<FakeFileCalls>();
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "file.json";
};

std::string kindName(const testing::TestParamInfo<bool>& info) {
    return info.param ? "Nameless" : "Named";
}

INSTANTIATE_TEST_SUITE_P(Of, AtomicFileWriting, testing::Bool(), kindName);

TEST_P(AtomicFileWriting, MakesANewFileForItsOwnerAlone) {
    const mode_t before = ::umask(0);
    EXPECT_EQ(write(file, std::string("a\0b", 3)), "");
    ::umask(before);
    EXPECT_EQ(contentOf(file), std::string("a\0b", 3));
    EXPECT_EQ(modeOf(file), 0600u);
    EXPECT_THAT(folder.names(), ElementsAre("file.json"));
}

TEST_P(AtomicFileWriting, GivesTheFileANameOnlyWhenItIsWhole) {
    const int nameless = FileCalls().createNameless(AT_FDCWD);
    if (nameless < 0) GTEST_SKIP() << "no nameless files here";
    ::close(nameless);
    std::size_t names = 0;
    calls->onSync = [&] { names = folder.names().size(); };
    EXPECT_EQ(write(file), "");
    EXPECT_EQ(names, GetParam() ? 0u : 1u);
    EXPECT_EQ(calls->made["create"], GetParam() ? 0 : 1);
}

TEST_P(AtomicFileWriting, TakesNothingAndMillionsOfBytes) {
    EXPECT_EQ(write(file, ""), "");
    EXPECT_EQ(contentOf(file), "");
    const std::string much(5'000'000, 'x');
    EXPECT_EQ(write(file, much), "");
    EXPECT_TRUE(contentOf(file) == much);
}

TEST_P(AtomicFileWriting, KeepsThePermissionBitsOfTheFileThatItReplaces) {
    for (const mode_t mode : {0600u, 0644u, 0640u, 0666u, 0755u}) {
        writeFile(file, "old and longer");
        ::chmod(file.c_str(), mode);
        EXPECT_EQ(write(file), "");
        EXPECT_EQ(contentOf(file), "new");
        EXPECT_EQ(modeOf(file), mode);
    }
    EXPECT_THAT(folder.names(), ElementsAre("file.json"));
}

TEST_P(AtomicFileWriting, KeepsTheOwnerAndGroup) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root may give files away";
    writeFile(file, "old");
    ASSERT_EQ(::chown(file.c_str(), 1234, 2345), 0);
    EXPECT_EQ(write(file), "");
    struct stat status {};
    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234u);
    EXPECT_EQ(status.st_gid, 2345u);
}

TEST_P(AtomicFileWriting, GivesTheBitsOfAGroupThatCannotStayToNoOther) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root may give files away";
    calls->errors["changeOwner"] = EPERM;
    writeFile(file, "old");
    ASSERT_EQ(::chown(file.c_str(), ::geteuid(), 2345), 0);
    ::chmod(file.c_str(), 0664);
    EXPECT_EQ(write(file), "");
    EXPECT_EQ(modeOf(file), 0644u);
}

TEST_P(AtomicFileWriting, LeavesTheOldFileToWhoeverHasItOpen) {
    writeFile(file, "old");
    const int reader = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    EXPECT_EQ(write(file), "");
    char content[8] = {};
    EXPECT_EQ(::read(reader, content, sizeof content), 3);
    EXPECT_STREQ(content, "old");
    ::close(reader);
}

TEST_P(AtomicFileWriting, ReplacesWhatASymbolicLinkLeadsTo) {
    fs::create_directory(folder.path() / "data");
    const fs::path target = folder.path() / "data" / "target.json";
    writeFile(target, "old");
    ::chmod(target.c_str(), 0644);
    fs::create_symlink("data/target.json", folder.path() / "near.json");
    fs::create_symlink(folder.path() / "near.json", file);
    EXPECT_EQ(write(file), "");
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_TRUE(fs::is_symlink(folder.path() / "near.json"));
    EXPECT_EQ(contentOf(target), "new");
    EXPECT_EQ(modeOf(target), 0644u);
    EXPECT_THAT(folder.namesIn(folder.path() / "data"), ElementsAre("target.json"));
}

TEST_P(AtomicFileWriting, MakesWhatASymbolicLinkLeadsToInVain) {
    fs::create_symlink("target.json", file);
    EXPECT_EQ(write(file), "");
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(contentOf(folder.path() / "target.json"), "new");
}

TEST_P(AtomicFileWriting, RefusesLinksThatLeadInACircle) {
    fs::create_symlink("other.json", file);
    fs::create_symlink("file.json", folder.path() / "other.json");
    EXPECT_EQ(write(file),
              "\"file.json\" could not be saved. The symbolic links there lead in a circle.");
}

TEST_P(AtomicFileWriting, RefusesAFolder) {
    fs::create_directory(file);
    EXPECT_EQ(write(file), "\"file.json\" could not be saved. A folder has that name.");
    EXPECT_EQ(write(file / ""),
              "\"" + (file / "").string() + "\" could not be saved. A folder has that name.");
    EXPECT_THAT(write(folder.path() / ".."), HasSubstr("A folder has that name."));
    EXPECT_THAT(folder.names(), ElementsAre("file.json"));
}

TEST_P(AtomicFileWriting, RefusesWhatIsNoOrdinaryFile) {
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(write(file),
              "\"file.json\" could not be saved. Something that is not an ordinary file has that "
              "name.");
    EXPECT_TRUE(fs::is_fifo(file));
}

TEST_P(AtomicFileWriting, RefusesADevice) {
    // One of the test's own: a mistake of the writer must not cost the machine its devices.
    if (::mknod(file.c_str(), S_IFCHR | 0600, ::makedev(1, 3)) != 0)
        GTEST_SKIP() << "devices cannot be made here";
    EXPECT_THAT(write(file), HasSubstr("not an ordinary file"));
    EXPECT_TRUE(fs::is_character_file(file));
}

TEST_P(AtomicFileWriting, SaysThatTheFolderIsGone) {
    EXPECT_EQ(write(folder.path() / "gone" / "file.json"),
              "\"file.json\" could not be saved. The folder does not exist.");
}

TEST_P(AtomicFileWriting, SaysThatAFolderIsNone) {
    writeFile(file, "old");
    EXPECT_THAT(write(file / "file.json"), HasSubstr("The place for it is not a folder."));
}

TEST_P(AtomicFileWriting, SaysThatANameIsTooLong) {
    EXPECT_THAT(write(folder.path() / std::string(300, 'n')), HasSubstr("The name is too long."));
    const std::string longest(255, 'n');
    EXPECT_EQ(write(folder.path() / longest), "");
}

TEST_P(AtomicFileWriting, LeavesNothingInAFolderThatGoesMeanwhile) {
    fs::create_directory(folder.path() / "going");
    calls->onSync = [&] { fs::rename(folder.path() / "going", folder.path() / "gone"); };
    EXPECT_EQ(write(folder.path() / "going" / "file.json"), "") << "it is the same folder";
    calls->onSync = [&] { fs::remove_all(folder.path() / "gone"); };
    EXPECT_EQ(write(folder.path() / "gone" / "other.json"),
              "\"other.json\" could not be saved. The folder does not exist.");
    EXPECT_THAT(folder.names(), IsEmpty());
}

/// For what root may do and others may not.
class AsNobody {
  public:
    AsNobody() : isRoot_(::geteuid() == 0) {
        if (isRoot_ && ::seteuid(nobody) != 0) std::abort();
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
    ~AsNobody() {
        if (isRoot_ && ::seteuid(0) != 0) std::abort();
    }

  private:
    bool isRoot_;
};

void giveToNobody(const fs::path& path) {
    if (::geteuid() == 0) {
        EXPECT_EQ(::chown(path.c_str(), nobody, nobody), 0);
    }
}

TEST_P(AtomicFileWriting, RefusesAFolderThatMayNotBeWrittenTo) {
    writeFile(file, "old");
    ::chmod(file.c_str(), 0666);
    ::chmod(folder.path().c_str(), 0555);
    {
        const AsNobody nobodyNow;
        EXPECT_EQ(write(file),
                  "\"file.json\" could not be saved. You do not have the permission to write "
                  "there.");
    }
    EXPECT_EQ(contentOf(file), "old");
}

TEST_P(AtomicFileWriting, RespectsAFileThatIsProtectedFromWriting) {
    giveToNobody(folder.path());
    writeFile(file, "old");
    giveToNobody(file);
    ::chmod(file.c_str(), 0444);
    {
        const AsNobody nobodyNow;
        EXPECT_THAT(write(file), HasSubstr("You do not have the permission"));
    }
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_THAT(folder.names(), ElementsAre("file.json"));
}

TEST_P(AtomicFileWriting, NeedsNotListTheFolder) {
    giveToNobody(folder.path());
    ::chmod(folder.path().c_str(), 0333);
    {
        const AsNobody nobodyNow;
        EXPECT_EQ(write(file), "");
    }
    ::chmod(folder.path().c_str(), 0700);
    EXPECT_EQ(contentOf(file), "new");
}

}  // namespace
}  // namespace vantor::posix_atomic_file_writer_test

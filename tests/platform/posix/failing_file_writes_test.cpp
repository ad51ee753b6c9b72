#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include <memory>
#include <string>

#include "platform/posix/fake_file_calls.h"
#include "platform/posix/file_error.h"
#include "platform/posix/posix_atomic_file_writer.h"
#include "support/private_mounts.h"
#include "support/temporary_folder.h"

/// What the disk may refuse at any step: the old file is there as it was, and nothing else.
namespace vantor::failing_file_writes_test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

struct FailureRow {
    const char* name;
    const char* call;
    int error;
    const char* reason;
};

void PrintTo(const FailureRow& row, std::ostream* out) {
    *out << row.name;
}

using FailureCase = std::tuple<FailureRow, bool>;

class FailingFileWrite : public testing::TestWithParam<FailureCase> {};

std::string caseName(const testing::TestParamInfo<FailureCase>& info) {
    const auto& [row, isNameless] = info.param;
    return row.name + std::string(isNameless ? "Nameless" : "Named");
}

constexpr auto noSpace = "There is not enough space on the disk.";

INSTANTIATE_TEST_SUITE_P(
    At, FailingFileWrite,
    testing::Combine(
        testing::Values(
            FailureRow{"WriteForSpace", "write", ENOSPC, noSpace},
            FailureRow{"WriteForQuota", "write", EDQUOT,
                       "You have used up the space that you may use on the disk."},
            FailureRow{"WriteForTheDisk", "write", EIO, "The disk could not be written to."},
            FailureRow{"SyncForSpace", "sync", ENOSPC, noSpace},
            FailureRow{"SyncForTheDisk", "sync", EIO, "The disk could not be written to."},
            FailureRow{"CloseForSpace", "close", ENOSPC, noSpace},
            FailureRow{"CloseForAServerThatIsGone", "close", ESTALE,
                       "The disk is not there any more."},
            FailureRow{"RenameForSpace", "rename", ENOSPC, noSpace},
            FailureRow{"RenameForPermission", "rename", EPERM,
                       "You do not have the permission to write there."}),
        testing::Bool()),
    caseName);

TEST_P(FailingFileWrite, LeavesTheOldFileAndNothingElse) {
    const auto& [row, isNameless] = GetParam();
    const auto calls = std::make_shared<FakeFileCalls>();
    calls->hasNamelessFiles = isNameless;
    calls->errors[row.call] = row.error;
    const TemporaryFolder folder;
    writeFile(folder.path() / "file.json", "old");
    PosixAtomicFileWriter writer(calls);
    const auto error = writer.write(folder.path() / "file.json", "new");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description, std::string("\"file.json\" could not be saved. ") + row.reason);
    EXPECT_GT(calls->made[row.call], 0);
    EXPECT_EQ(contentOf(folder.path() / "file.json"), "old");
    EXPECT_THAT(folder.names(), ElementsAre("file.json"));
}

TEST_P(FailingFileWrite, MakesNoFileWhereNoneWas) {
    const auto& [row, isNameless] = GetParam();
    const auto calls = std::make_shared<FakeFileCalls>();
    calls->hasNamelessFiles = isNameless;
    calls->errors[row.call] = row.error;
    // A new file is renamed only where it could not be put straight into its place.
    if (row.call == std::string("rename")) calls->errors["link"] = ENOENT;
    const TemporaryFolder folder;
    PosixAtomicFileWriter writer(calls);
    EXPECT_TRUE(writer.write(folder.path() / "file.json", "new"));
    EXPECT_THAT(folder.names(), testing::IsEmpty());
}

class HinderedFileWrite : public testing::Test {
  protected:
    void expectToBeWritten() {
        PosixAtomicFileWriter writer(calls);
        const std::string content = "a content of some length";
        EXPECT_EQ(writer.write(folder.path() / "file.json", content), std::nullopt);
        EXPECT_EQ(contentOf(folder.path() / "file.json"), content);
        EXPECT_THAT(folder.names(), ElementsAre("file.json"));
    }

    const std::shared_ptr<FakeFileCalls> calls = std::make_shared<FakeFileCalls>();
    const TemporaryFolder folder;
};

TEST_F(HinderedFileWrite, GoesOnAfterEachShortOne) {
    calls->maxPerWrite = 1;
    expectToBeWritten();
    EXPECT_EQ(calls->made["write"], 24);
}

TEST_F(HinderedFileWrite, EndsWhenNothingIsTakenAtAll) {
    calls->maxPerWrite = 0;
    PosixAtomicFileWriter writer(calls);
    EXPECT_TRUE(writer.write(folder.path() / "file.json", "new"));
}

TEST_F(HinderedFileWrite, MindsNoInterruption) {
    for (const char* call : {"createNameless", "write", "sync", "rename", "close"})
        calls->failsAtFirst[call] = 1;
    expectToBeWritten();
}

TEST_F(HinderedFileWrite, TriesAnotherNameWhenOneIsTaken) {
    calls->failsAtFirst = {{"link", 3}};
    expectToBeWritten();
    EXPECT_EQ(calls->made["link"], 4);
    calls->hasNamelessFiles = false;
    calls->failsAtFirst = {{"create", 3}};
    expectToBeWritten();
    EXPECT_EQ(calls->made["create"], 4);
}

TEST_F(HinderedFileWrite, PutsANewFileStraightIntoItsPlace) {
    expectToBeWritten();
    EXPECT_EQ(calls->made["link"], 1);
    EXPECT_EQ(calls->made["rename"], 0);
    expectToBeWritten();
    EXPECT_EQ(calls->made["rename"], 1) << "in the place of an old one";
}

TEST_F(HinderedFileWrite, ReplacesAFileThatCameMeanwhile) {
    calls->onSync = [&] { writeFile(folder.path() / "file.json", "another's"); };
    expectToBeWritten();
    EXPECT_EQ(calls->made["rename"], 1);
}

TEST_F(HinderedFileWrite, GivesUpWhenAllNamesAreTaken) {
    calls->hasNamelessFiles = false;
    calls->errors["create"] = EEXIST;
    PosixAtomicFileWriter writer(calls);
    EXPECT_TRUE(writer.write(folder.path() / "file.json", "new"));
    EXPECT_LT(calls->made["create"], 100);
}

TEST_F(HinderedFileWrite, TakesANamedFileWhereANamelessOneCanGetNoName) {
    calls->errors["link"] = ENOENT;  // without /proc
    expectToBeWritten();
    EXPECT_EQ(calls->made["create"], 1);
}

TEST_F(HinderedFileWrite, DoesWithoutWhatTheFileSystemDoesNotKnow) {
    writeFile(folder.path() / "file.json", "old");
    calls->errors = {{"sync", EINVAL}, {"changeMode", EPERM}, {"changeOwner", EPERM}};
    expectToBeWritten();
}

TEST_F(HinderedFileWrite, TellsTheDiskOfTheFolderToo) {
    expectToBeWritten();
    EXPECT_EQ(calls->made["sync"], 2);
}

TEST(FileSizeLimit, IsAnErrorAndNotTheProgramsEnd) {
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "file.json";
    writeFile(file, "old");
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{4096, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const auto error = PosixAtomicFileWriter().write(file, std::string(10'000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description,
              "\"file.json\" could not be saved. The file would be larger than it may be there.");
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_THAT(folder.names(), ElementsAre("file.json"));
}

/// Runs on a private disk of 64 KiB.
std::string onSmallDisk(const std::function<std::string(const fs::path&)>& work) {
    const TemporaryFolder folder;
    const ChildOutcome outcome = withPrivateMounts([&]() -> std::string {
        if (::mount("none", folder.path().c_str(), "tmpfs", 0, "size=64k") != 0) return "no disk";
        return work(folder.path());
    });
    return outcome.wasPossible ? outcome.complaints : "not possible";
}

std::string complaintUnless(bool holds, const std::string& complaint) {
    return holds ? "" : complaint + "; ";
}

TEST(FullDisk, LeavesTheOldFileAndNothingElse) {
    const std::string complaints = onSmallDisk([](const fs::path& disk) {
        writeFile(disk / "file.json", "old");
        const auto error =
            PosixAtomicFileWriter().write(disk / "file.json", std::string(100'000, 'x'));
        const std::string said = error ? error->description : "(nothing)";
        return complaintUnless(said == std::string("\"file.json\" could not be saved. ") + noSpace,
                               said) +
               complaintUnless(contentOf(disk / "file.json") == "old", "the old file changed") +
               complaintUnless(TemporaryFolder::namesIn(disk).size() == 1, "something is left");
    });
    if (complaints == "not possible") GTEST_SKIP() << "this machine lets nobody mount anything";
    EXPECT_EQ(complaints, "");
}

TEST(ReadOnlyDisk, IsSaid) {
    const std::string complaints = onSmallDisk([](const fs::path& disk) {
        writeFile(disk / "file.json", "old");
        if (::mount("none", disk.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) != 0)
            return std::string("not possible");
        std::string heard;
        for (const char* name : {"file.json", "another.json"}) {
            const auto error = PosixAtomicFileWriter().write(disk / name, "new");
            const std::string said = error ? error->description : "(nothing)";
            heard += complaintUnless(said.ends_with(" The disk can only be read."), said);
        }
        return heard;
    });
    if (complaints == "not possible") GTEST_SKIP() << "this machine lets nobody mount anything";
    EXPECT_EQ(complaints, "");
}

TEST(FileError, IsInWordsAndWellFormedWhateverTheNameAndTheReason) {
    EXPECT_EQ(describeFileError(ENOSPC, "/folder/a\xFF.json").description,
              "\"a\xEF\xBF\xBD.json\" could not be saved. There is not enough space on the disk.");
    EXPECT_EQ(describeFileError(EROFS, "/").description,
              "\"/\" could not be saved. The disk can only be read.");
    EXPECT_EQ(
        describeFileError(EXDEV, "a").description,
        "\"a\" could not be saved. The system gave the reason \"Invalid cross-device link\" (" +
            std::to_string(EXDEV) + ").");
}

}  // namespace
}  // namespace vantor::failing_file_writes_test

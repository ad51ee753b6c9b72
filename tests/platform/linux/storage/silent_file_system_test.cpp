#include <gtest/gtest.h>
#include <sys/statvfs.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include "platform/native_machine.h"
#include "probes/storage_reader.h"
#include "support/becomes_true.h"
#include "support/private_mounts.h"
#include "support/served_folder.h"

/// A real file system that never answers, like one whose server is dead.
namespace vantor::silent_file_system_test {
namespace {

std::string checkSilentFileSystem(const std::string& folder) {
    ServedFolder silent(folder, "fuse.silent");
    if (!silent.isMounted()) return "skip";
    silent.setManner(ServedFolder::Manner::keepsQuestions);
    if (!becomesTrue([&] { return silent.hasGreeted(); })) return "the kernel did not greet it";

    // That it holds people up at all.
    std::atomic<bool> hasReturned = false;
    std::thread visitor([&] {
        struct statvfs answer = {};
        ::statvfs(folder.c_str(), &answer);
        hasReturned = true;
    });
    const bool wasAsked = becomesTrue([&] { return silent.questions() > 0; });
    const int questions = silent.questions();

    const auto list = StorageReader(makeNativeMachine()).read();
    std::string complaints;
    if (!wasAsked || hasReturned) complaints += "it answered; ";
    if (!list) {
        complaints += "there is no list; ";
    } else {
        for (const VolumeStats& volume : *list) {
            if (volume.path == folder) complaints += "it is listed; ";
        }
    }
    if (silent.questions() != questions) complaints += "it was touched; ";
    silent.shutDown();
    visitor.join();
    return complaints;
}

TEST(SilentFileSystem, IsNotTouched) {
    std::string folder = (std::filesystem::temp_directory_path() / "silent-XXXXXX").string();
    ASSERT_NE(::mkdtemp(folder.data()), nullptr);
    const ChildOutcome outcome = withPrivateMounts([&] { return checkSilentFileSystem(folder); });
    std::filesystem::remove(folder);
    if (!outcome.wasPossible) GTEST_SKIP() << "mounts of one's own are not allowed here";
    if (outcome.complaints == "skip") GTEST_SKIP() << "file systems by programs are not to be had";
    EXPECT_EQ(outcome.complaints, "");
}

}  // namespace
}  // namespace vantor::silent_file_system_test

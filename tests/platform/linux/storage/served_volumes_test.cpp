#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <thread>

#include "platform/file_descriptor.h"
#include "platform/native_machine.h"
#include "probes/storage_reader.h"
#include "support/becomes_true.h"
#include "support/private_mounts.h"
#include "support/served_folder.h"

/// A real file system whose program stops answering, beside the volumes of this very machine.
namespace vantor::served_volumes_test {
namespace {

using Manner = ServedFolder::Manner;

constexpr std::uint64_t blockSize = 4096;

/// One folder that is served, and the list of volumes.
class Scene {
  public:
    explicit Scene(const std::string& folder) : folder_(folder), served(folder, "fuse.mergerfs") {}

    bool isSet() {
        return served.isMounted() && becomesTrue([this] { return served.hasGreeted(); });
    }

    /// The available blocks that are listed; the others on the list are counted.
    std::optional<std::uint64_t> available() {
        const auto list = reader_.read();
        others = 0;
        std::optional<std::uint64_t> found;
        for (const VolumeStats& volume : list.value_or(std::vector<VolumeStats>())) {
            if (volume.path == folder_) {
                found = volume.availableBytes / blockSize;
            } else {
                ++others;
            }
        }
        return found;
    }
    bool showsSoon(std::optional<std::uint64_t> blocks) {
        return becomesTrue([&] { return available() == blocks; });
    }

  private:
    std::string folder_;
    StorageReader reader_{makeNativeMachine()};

  public:
    ServedFolder served;
    int others = 0;
};

std::string checkHanging(const std::string& folder, Manner manner) {
    const auto listBefore = StorageReader(makeNativeMachine()).read();
    const int othersBefore = listBefore ? static_cast<int>(listBefore->size()) : 0;
    Scene scene(folder);
    if (!scene.isSet()) return "skip";
    scene.served.setManner(manner);
    if (scene.available() != std::nullopt) return "it is listed before it has answered";
    if (scene.others != othersBefore) return "others are not listed";
    scene.served.setManner(Manner::answers);
    if (!scene.showsSoon(500)) return "it is not listed once it answers";

    const int questionsBefore = scene.served.questions();
    scene.served.setManner(manner);
    for (int pass = 0; pass < 20; ++pass) {
        if (scene.available() != 500) return "it is not listed as before while it hangs";
        if (scene.others != othersBefore) return "others are not listed while it hangs";
    }
    // The one that hangs, and one that may have been on its way.
    if (scene.served.questions() > questionsBefore + 2)
        return "it is asked though it has not answered";
    scene.served.setAvailable(400);
    scene.served.setManner(Manner::answers);
    if (!scene.showsSoon(400)) return "it is listed as before though it answers again";
    return {};
}

/// Runs in a process of its own, which ends while its question is out. It begins as soon as it has
/// something to read.
[[noreturn]] void readOnceAndEnd(int begin, int otherEnd) {
    ::close(otherEnd);
    char letter = 0;
    if (::read(begin, &letter, 1) != 1) std::_Exit(1);
    std::_Exit(StorageReader(makeNativeMachine()).read() ? 0 : 1);
}

std::string checkEnd(const std::string& folder) {
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0) return "skip";
    const FileDescriptor readEnd{ends[0]};
    const FileDescriptor writeEnd{ends[1]};
    // Before there are threads: it has to start some itself.
    const pid_t child = ::fork();
    if (child < 0) return "skip";
    if (child == 0) readOnceAndEnd(readEnd.get(), writeEnd.get());
    ServedFolder served(folder, "fuse.mergerfs");
    const bool isSet = served.isMounted() && becomesTrue([&] { return served.hasGreeted(); });
    served.setManner(Manner::readsNothing);
    if (::write(writeEnd.get(), "x", 1) != 1) return "it could not begin";
    int status = 0;
    const bool hasEnded = becomesTrue([&] { return ::waitpid(child, &status, WNOHANG) == child; });
    served.shutDown();
    if (!hasEnded) ::waitpid(child, &status, 0);
    if (!isSet) return "skip";
    if (!hasEnded) return "it is still there";
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? "" : "it went wrong";
}

void runInPrivate(const std::function<std::string(const std::string&)>& check) {
    std::string folder = (std::filesystem::temp_directory_path() / "served-XXXXXX").string();
    ASSERT_NE(::mkdtemp(folder.data()), nullptr);
    const ChildOutcome outcome = withPrivateMounts([&] { return check(folder); });
    std::filesystem::remove(folder);
    if (!outcome.wasPossible) GTEST_SKIP() << "mounts of one's own are not allowed here";
    if (outcome.complaints == "skip") GTEST_SKIP() << "file systems by programs are not to be had";
    EXPECT_EQ(outcome.complaints, "");
}

TEST(ServedVolume, ThatReadsNothingMoreIsListedAsBefore) {
    runInPrivate(
        [](const std::string& folder) { return checkHanging(folder, Manner::readsNothing); });
}

TEST(ServedVolume, ThatKeepsItsQuestionsIsListedAsBefore) {
    runInPrivate(
        [](const std::string& folder) { return checkHanging(folder, Manner::keepsQuestions); });
}

TEST(ServedVolume, ThatReadsNothingDoesNotKeepAProgramFromEnding) {
    runInPrivate(checkEnd);
}

}  // namespace
}  // namespace vantor::served_volumes_test

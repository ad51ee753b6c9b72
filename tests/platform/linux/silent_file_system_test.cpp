#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fuse.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

#include "platform/linux/file_descriptor.h"
#include "platform/native_machine.h"
#include "probes/storage_reader.h"
#include "support/private_mounts.h"

/// A real file system that answers nobody, like one whose server is dead.
namespace vantor::silent_file_system_test {
namespace {

using namespace std::chrono_literals;

class SilentFileSystem {
  public:
    explicit SilentFileSystem(std::string folder) : folder_(std::move(folder)) {
        device_ = FileDescriptor{::open("/dev/fuse", O_RDWR | O_CLOEXEC)};
        if (!device_) return;
        const std::string options = "fd=" + std::to_string(device_.get()) +
                                    ",rootmode=40000,user_id=" + std::to_string(::getuid()) +
                                    ",group_id=" + std::to_string(::getgid());
        isMounted_ = ::mount("silent", folder_.c_str(), "fuse.silent", 0, options.c_str()) == 0;
        if (isMounted_) server_ = std::thread([this] { serve(); });
    }
    SilentFileSystem(const SilentFileSystem&) = delete;
    SilentFileSystem& operator=(const SilentFileSystem&) = delete;
    ~SilentFileSystem() { shutDown(); }

    bool isMounted() const { return isMounted_; }
    bool hasGreeted() const { return hasGreeted_; }
    int questions() const { return questions_; }

    /// Whoever waits for an answer gets an error.
    void shutDown() {
        if (!server_.joinable()) return;
        ::umount2(folder_.c_str(), MNT_FORCE);
        ::umount2(folder_.c_str(), MNT_DETACH);
        server_.join();
    }

  private:
    void serve() {
        std::array<char, FUSE_MIN_READ_BUFFER + 65536> request{};
        while (true) {
            const ssize_t count = ::read(device_.get(), request.data(), request.size());
            if (count < 0 && (errno == EINTR || errno == ENOENT)) continue;
            if (count < static_cast<ssize_t>(sizeof(fuse_in_header))) return;
            fuse_in_header header{};
            std::memcpy(&header, request.data(), sizeof header);
            if (header.opcode == FUSE_INIT) {
                greet(header.unique);
            } else {
                ++questions_;
            }
        }
    }

    void greet(std::uint64_t unique) {
        struct {
            fuse_out_header header{};
            fuse_init_out greeting{};
        } answer;
        answer.header.len = sizeof answer;
        answer.header.unique = unique;
        answer.greeting.major = FUSE_KERNEL_VERSION;
        answer.greeting.minor = FUSE_KERNEL_MINOR_VERSION;
        answer.greeting.max_write = 4096;
        hasGreeted_ = ::write(device_.get(), &answer, sizeof answer) > 0;
    }

    std::string folder_;
    FileDescriptor device_;
    std::thread server_;
    bool isMounted_ = false;
    std::atomic<bool> hasGreeted_ = false;
    std::atomic<int> questions_ = 0;
};

template <class Condition>
bool waitUntil(Condition condition) {
    const auto deadline = std::chrono::steady_clock::now() + 20s;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::yield();
    }
    return true;
}

std::string checkSilentFileSystem(const std::string& folder) {
    SilentFileSystem silent(folder);
    if (!silent.isMounted()) return "skip";
    if (!waitUntil([&] { return silent.hasGreeted(); })) return "the kernel did not greet it";

    // That it holds people up at all.
    std::atomic<bool> hasReturned = false;
    std::thread visitor([&] {
        struct statvfs answer = {};
        ::statvfs(folder.c_str(), &answer);
        hasReturned = true;
    });
    const bool wasAsked = waitUntil([&] { return silent.questions() > 0; });
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

TEST(LiveVolumes, AFileSystemThatNeverAnswersIsNotTouched) {
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

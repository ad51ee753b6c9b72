#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>

#include "platform/linux/linux_machine.h"
#include "probes/process_reader.h"
#include "support/live_child.h"

/// Children of this test with names that are made to mislead.
namespace vantor::live_process_names_test {
namespace {

struct NameRow {
    const char* title;
    std::string name;
    std::string shown;  ///< as text

    friend void PrintTo(const NameRow& row, std::ostream* out) { *out << row.title; }
};

class LiveProcessName : public testing::TestWithParam<NameRow> {
  protected:
    static ProcessStats read(pid_t pid) {
        ProcessReader reader(std::make_shared<LinuxMachine>());
        reader.read();
        for (const ProcessStats& process : reader.read().all) {
            if (process.pid == pid) return process;
        }
        return {};
    }
};

INSTANTIATE_TEST_SUITE_P(
    Rows, LiveProcessName,
    testing::Values(NameRow{"LikeTheFieldsAfterIt", ") R 1 (", ") R 1 ("},
                    NameRow{"Closing", ")", ")"}, NameRow{"Newline", "a\nb", "a\nb"},
                    NameRow{"NewlineAtTheEnd", "a\n", "a\n"},
                    NameRow{"InvalidUTF8", "a\xFF\xC3", "a\uFFFD\uFFFD"},
                    NameRow{"FifteenBytes", "123456789012345", "123456789012345"},
                    NameRow{"ACharacterCutByTheKernel", "12345678901234\u00E4",
                            "12345678901234\uFFFD"}),
    [](const auto& row) { return std::string(row.param.title); });

TEST_P(LiveProcessName, IsReadByteForByteAndHarmsNoFigure) {
    const LiveChild child([] { ::prctl(PR_SET_NAME, GetParam().name.c_str()); });
    ASSERT_TRUE(child.waitUntilAsleep());
    std::array<char, 64> buffer{};
    const int count = LinuxMachine().processTable().name(child.pid(), buffer);
    ASSERT_GT(count, 0);
    EXPECT_EQ(std::string(buffer.data(), static_cast<std::size_t>(count)),
              GetParam().name.substr(0, 15));
    const ProcessStats stats = read(child.pid());
    EXPECT_EQ(stats.name.string(),
              std::filesystem::read_symlink("/proc/self/exe").filename().string());
    // It sleeps; but a sanitizer's own thread in it does not, quite.
    EXPECT_LT(stats.cpuPercent, 25);
    EXPECT_GT(stats.residentMemoryBytes, 0U);
}

// What is left of a process that ended has no executable any more.
TEST_P(LiveProcessName, OfAZombieIsTheKernels) {
    const LiveChild child([] { ::prctl(PR_SET_NAME, GetParam().name.c_str()); });
    ASSERT_TRUE(child.waitUntilAsleep());
    ASSERT_TRUE(child.becomeZombie());
    const ProcessStats stats = read(child.pid());
    EXPECT_EQ(stats.name.string(), GetParam().shown);
    EXPECT_EQ(stats.command.string(), GetParam().shown);
    EXPECT_EQ(stats.residentMemoryBytes, 0U);
}

constexpr auto sleepProgram = "/bin/sleep";

/// Copies of a program in a folder that goes with this object.
class LiveExecutable : public testing::Test {
  protected:
    void SetUp() override {
        if (::access(sleepProgram, X_OK) != 0) GTEST_SKIP() << "there is no " << sleepProgram;
        std::string pattern = std::filesystem::temp_directory_path() / "vantor-programs-XXXXXX";
        folder_ = ::mkdtemp(pattern.data());
    }
    ~LiveExecutable() override { std::filesystem::remove_all(folder_); }

    std::string copy(const std::string& name) const {
        const std::filesystem::path path = folder_ / name;
        std::filesystem::create_directories(path.parent_path());
        std::filesystem::copy_file(sleepProgram, path);
        return path;
    }
    /// Waits until the child has become that program.
    static bool runs(const LiveChild& child, const std::string& path) {
        std::error_code error;
        const auto link = "/proc/" + std::to_string(child.pid()) + "/exe";
        for (int i = 0; i < 1000 && std::filesystem::read_symlink(link, error) != path; ++i)
            ::usleep(1000);
        return child.waitUntilAsleep();
    }
    static ProcessStats read(pid_t pid) {
        ProcessReader reader(std::make_shared<LinuxMachine>());
        reader.read();
        for (const ProcessStats& process : reader.read().all) {
            if (process.pid == pid) return process;
        }
        return {};
    }
    const std::filesystem::path& folder() const { return folder_; }

  private:
    std::filesystem::path folder_;
};

TEST_F(LiveExecutable, WithAHostileNameIsShownAsText) {
    for (const auto& [name, shown] : {std::pair<std::string, std::string>{") R 1 (", ") R 1 ("},
                                      {"a\nb", "a\nb"},
                                      {"a\xFF", "a\uFFFD"}}) {
        const std::string path = copy(name);
        const LiveChild child(LiveChild::running(path));
        ASSERT_TRUE(runs(child, path));
        const ProcessStats stats = read(child.pid());
        EXPECT_EQ(stats.name.string(), shown);
        EXPECT_EQ(stats.command.string(), folder().string() + "/" + shown);
    }
}

TEST_F(LiveExecutable, WithAPathOfFourThousandBytesIsShownWhole) {
    std::string name;
    std::size_t left = 4000 - folder().string().size() - 1;
    for (; left > 200; left -= 101)
        name += std::string(100, 'd') + "/";
    const std::string program(left, 'p');
    const std::string path = copy(name + program);
    ASSERT_EQ(path.size(), 4000U);
    const LiveChild child(LiveChild::running(path));
    ASSERT_TRUE(runs(child, path));
    const ProcessStats stats = read(child.pid());
    EXPECT_EQ(stats.name.string(), program);
    EXPECT_EQ(stats.command.string(), path);
}

TEST_F(LiveExecutable, ThatWasDeletedKeepsItsName) {
    const std::string path = copy("deleted");
    const LiveChild child(LiveChild::running(path));
    ASSERT_TRUE(runs(child, path));
    std::filesystem::remove(path);
    const ProcessStats stats = read(child.pid());
    EXPECT_EQ(stats.name.string(), "deleted");
    EXPECT_EQ(stats.command.string(), path);
}

/// While it lives, this program has an ordinary user's rights and no more.
class OrdinaryUser {
  public:
    OrdinaryUser() : isOne_(::geteuid() == 0 && ::seteuid(nobody) == 0) {}
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() {
        if (!isOne_ || ::seteuid(0) != 0) return;
        ::prctl(PR_SET_DUMPABLE, 1);  // which the change took away
    }

    bool isOne() const { return isOne_; }

  private:
    static constexpr uid_t nobody = 65534;
    bool isOne_;
};

constexpr auto longName = "a-program-with-a-rather-long-name";
constexpr auto cutName = "a-program-with-";

class ProcessOfAnotherUser : public LiveExecutable {
  protected:
    /// What an ordinary user sees of the superuser's process of that (long) name.
    static ProcessStats see(const std::string& path, const std::string& firstArgument) {
        const LiveChild child([&] {
            ::execl(path.c_str(), firstArgument.c_str(), "1000", nullptr);
            ::_exit(1);
        });
        EXPECT_TRUE(runs(child, path));
        const OrdinaryUser user;
        return user.isOne() ? read(child.pid()) : ProcessStats{};
    }

    void SetUp() override {
        if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be somebody else";
        LiveExecutable::SetUp();
    }
};

TEST_F(ProcessOfAnotherUser, IsShownUnderItsWholeNameWithItsPath) {
    const std::string path = copy(longName);
    const ProcessStats stats = see(path, path);
    EXPECT_EQ(stats.name.string(), longName);
    EXPECT_EQ(stats.command.string(), path);
}

TEST_F(ProcessOfAnotherUser, WithAShortNameIsShownWithItsPath) {
    const std::string path = copy("short");
    const ProcessStats stats = see(path, path);
    EXPECT_EQ(stats.name.string(), "short");
    EXPECT_EQ(stats.command.string(), path);
}

TEST_F(ProcessOfAnotherUser, StartedByARelativePathIsShownUnderItsWholeName) {
    const ProcessStats stats = see(copy(longName), std::string("./") + longName);
    EXPECT_EQ(stats.name.string(), longName);
    EXPECT_EQ(stats.command.string(), longName);
}

TEST_F(ProcessOfAnotherUser, ThatClaimsAnotherNameIsShownUnderTheKernels) {
    const std::string path = copy(longName);
    for (const std::string& claim :
         {std::string("/usr/bin/innocent"), std::string("innocent"),
          std::string(cutName) + "\x1b[2J", "/" + std::string(cutName) + "\n", std::string(),
          "/" + std::string(longName) + "/", "/" + std::string(5000, 'a') + "/" + longName}) {
        SCOPED_TRACE(claim.substr(0, 40));
        const ProcessStats stats = see(path, claim);
        EXPECT_EQ(stats.name.string(), cutName);
        EXPECT_EQ(stats.command.string(), cutName);
    }
}

}  // namespace
}  // namespace vantor::live_process_names_test

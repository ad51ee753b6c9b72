#include "platform/linux/confinement/linux_confinement.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/netlink.h>
#include <sys/inotify.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/confinement/denied_attempts.h"
#include "support/temporary_folder.h"

/// Everything here happens in children: what has been taken away does not come back.
namespace vantor::linux_confinement_test {
namespace {

using Listening = Confinement::Listening;

constexpr const char* localDisplay = ":0";

/// The rules that answer to attempts under a filter of `denied` whose errors are the numbers of its
/// rules.
std::set<std::string> rulesThatAnswer(std::span<const DeniedCall> denied,
                                      const std::vector<Attempt>& attempts) {
    constexpr int firstNumber = 1000;
    std::set<std::string> names;
    std::array<int, 2> pipe{};
    EXPECT_EQ(::pipe(pipe.data()), 0);
    inChild([&] {
        std::vector<DeniedCall> numbered(denied.begin(), denied.end());
        for (std::size_t i = 0; i < numbered.size(); ++i)
            numbered[i].error = firstNumber + static_cast<int>(i);
        if (!installCallFilter(makeCallFilter(numbered, Denial::isAnError))) return 1;
        for (const Attempt& attempt : attempts) {
            const int answer = errorOf(attempt);
            const auto written = ::write(pipe[1], &answer, sizeof answer);
            if (written != sizeof answer) return 1;
        }
        return 0;
    });
    ::close(pipe[1]);
    for (const Attempt& attempt : attempts) {
        int answer = 0;
        EXPECT_EQ(::read(pipe[0], &answer, sizeof answer), sizeof answer) << attempt.rule;
        const int index = answer - firstNumber;
        const bool isRule = index >= 0 && index < static_cast<int>(denied.size());
        EXPECT_TRUE(isRule) << attempt.rule << " is answered with " << answer;
        if (!isRule) continue;
        const std::string name = denied[static_cast<std::size_t>(index)].name;
        EXPECT_EQ(name, attempt.rule);
        names.insert(name);
    }
    ::close(pipe[0]);
    return names;
}

void expectEachRuleIsNeeded(std::span<const DeniedCall> denied,
                            const std::vector<Attempt>& attempts) {
    const auto answering = rulesThatAnswer(denied, attempts);
    for (const DeniedCall& call : denied)
        EXPECT_TRUE(answering.contains(call.name)) << "no attempt is made at: " << call.name;
    EXPECT_EQ(attempts.size(), denied.size());
}

/// 0 when all are denied as they are to be, else one more than the index of the first that is not.
int firstNotDenied(const std::vector<Attempt>& attempts) {
    for (std::size_t i = 0; i < attempts.size(); ++i) {
        if (errorOf(attempts[i]) != attempts[i].error) return static_cast<int>(i) + 1;
    }
    return 0;
}

void expectAllDenied(const std::vector<Attempt>& attempts, const std::function<void()>& confine) {
    const int failed = inChild([&] {
        confine();
        return firstNotDenied(attempts);
    });
    ASSERT_LT(failed, 1000) << "ended by signal " << failed - 1000;
    EXPECT_EQ(failed, 0) << "not denied: " << attempts[static_cast<std::size_t>(failed - 1)].rule;
}

TEST(LinuxConfinement, EachRuleOfTheStartDeniesWhatNoOtherOneDoes) {
    expectEachRuleIsNeeded(callsDeniedEarly(), earlyAttempts());
}

TEST(LinuxConfinement, EachRuleForALocalDisplayDeniesWhatNoOtherOneDoes) {
    expectEachRuleIsNeeded(callsDeniedWithLocalDisplay(), internetAttempts());
}

TEST(LinuxConfinement, EachRuleForTheTimeAfterTheStartDeniesWhatNoOtherOneDoes) {
    expectEachRuleIsNeeded(callsDeniedWhenRunning(), internetAttempts());
    expectEachRuleIsNeeded(callsDeniedAfterListening(), {runningAttempts().back()});
}

TEST(LinuxConfinement, DeniesAllOfItFromTheStartOn) {
    std::vector<Attempt> attempts = earlyAttempts();
    attempts.insert(attempts.end(), internetAttempts().begin(), internetAttempts().end());
    expectAllDenied(attempts, [] { LinuxConfinement(localDisplay).confineEarly(); });
}

TEST(LinuxConfinement, DeniesTheRestOnceTheProgramRuns) {
    std::vector<Attempt> attempts = earlyAttempts();
    attempts.insert(attempts.end(), runningAttempts().begin(), runningAttempts().end());
    expectAllDenied(attempts, [] {
        LinuxConfinement confinement("elsewhere:0");
        confinement.confineEarly();
        confinement.confineForRunning(Listening::isOver);
    });
}

TEST(LinuxConfinement, LeavesADisplayOnTcpItsSocketUntilItIsConnected) {
    EXPECT_EQ(inChild([] {
                  LinuxConfinement("elsewhere:0").confineEarly();
                  return errorOf(internetAttempts()[0]) + errorOf(internetAttempts()[1]);
              }),
              0);
}

TEST(LinuxConfinement, LeavesListeningToAProgramThatMayStillHaveTo) {
    EXPECT_EQ(inChild([] {
                  LinuxConfinement confinement(localDisplay);
                  confinement.confineEarly();
                  confinement.confineForRunning(Listening::mayBegin);
                  return errorOf(runningAttempts().back());
              }),
              EBADF);
}

TEST(LinuxConfinement, KnowsADisplayOnTcp) {
    for (const char* const display : {":0", ":0.1", "unix:0", "unix/host:0", "", "/tmp/launch:0"})
        EXPECT_FALSE(isDisplayOnTcp(display)) << display;
    for (const char* const display : {"localhost:10.0", "host:0", "[::1]:0", "tcp/host:0"})
        EXPECT_TRUE(isDisplayOnTcp(display)) << display;
}

TEST(LinuxConfinement, HoldsForThreadsThatWereThereBefore) {
    EXPECT_EQ(inChild([] {
                  std::array<int, 2> pipe{};
                  if (::pipe(pipe.data()) != 0) return 1;
                  int failed = -1;
                  std::thread other([&] {
                      char byte = 0;
                      if (::read(pipe[0], &byte, 1) == 1)
                          failed = firstNotDenied(runningAttempts());
                  });
                  LinuxConfinement confinement(localDisplay);
                  confinement.confineEarly();
                  confinement.confineForRunning(Listening::isOver);
                  if (::write(pipe[1], "", 1) != 1) return 2;
                  other.join();
                  return failed == 0 ? 0 : 3;
              }),
              0);
}

TEST(LinuxConfinement, IsToldByTheKernelToWhoeverAsks) {
    EXPECT_EQ(inChild([] {
                  LinuxConfinement(localDisplay).confineEarly();
                  std::ifstream file("/proc/self/status");
                  const std::string status{std::istreambuf_iterator<char>(file), {}};
                  const bool isTold = status.find("\nSeccomp:\t2\n") != std::string::npos &&
                                      status.find("\nNoNewPrivs:\t1\n") != std::string::npos;
                  return isTold ? 0 : 1;
              }),
              0);
}

TEST(LinuxConfinement, TellsThatItIsThere) {
    EXPECT_EQ(LinuxConfinement(localDisplay).state().text(), "no")
        << "before it has been asked for";
    EXPECT_EQ(inChild([] {
                  LinuxConfinement confinement(localDisplay);
                  confinement.confineEarly();
                  confinement.confineForRunning(Listening::isOver);
                  return confinement.state().text() == "yes" ? 0 : 1;
              }),
              0);
}

TEST(LinuxConfinement, TellsWhatIsMissing) {
    const ConfinementState inPart{true, {"one thing", "another"}};
    EXPECT_EQ(inPart.text(), "in part (without one thing, another)");
    EXPECT_EQ(inChild([] {
                  // A kernel that takes no filter, as far as the program can tell.
                  const std::array refused{DeniedCall{"seccomp", SYS_seccomp, EINVAL}};
                  installCallFilter(makeCallFilter(refused, Denial::isAnError));
                  LinuxConfinement confinement(localDisplay);
                  confinement.confineEarly();
                  confinement.confineForRunning(Listening::isOver);
                  const auto& state = confinement.state();
                  return !state.isConfined && state.missing.size() == 2 ? 0 : 1;
              }),
              0);
}

/// What the program does as it runs; 0 when all of it works.
int doWhatIsAllowed(const std::string& folder) {
    int answer = 0;
    std::thread([&] { answer = 1; }).join();
    if (answer != 1) return 1;
    const std::string file = folder + "/file";
    std::ofstream(file) << "text";
    if (::rename(file.c_str(), (folder + "/other").c_str()) != 0) return 2;
    if (::open("/proc/self/stat", O_RDONLY) < 0) return 3;
    if (::prctl(PR_SET_NAME, "name") != 0) return 4;
    if (::inotify_init1(IN_CLOEXEC) < 0) return 5;
    const int local = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{AF_UNIX, "/nowhere"};
    if (local < 0 || ::connect(local, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 ||
        errno != ENOENT)
        return 6;
    if (::socket(AF_NETLINK, SOCK_RAW, NETLINK_ROUTE) < 0) return 7;
    std::array<int, 2> pair{};
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()) != 0) return 8;
    if (::mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) ==
        MAP_FAILED)
        return 9;  // how a library is loaded
    std::signal(SIGUSR1, SIG_IGN);
    return ::raise(SIGUSR1) == 0 && ::kill(::getpid(), 0) == 0 ? 0 : 10;
}

TEST(LinuxConfinement, LeavesWhatTheProgramDoes) {
    for (const Denial denial : {Denial::isAnError, Denial::endsTheProcess}) {
        const TemporaryFolder folder;
        EXPECT_EQ(inChild([&] {
                      LinuxConfinement confinement(localDisplay, denial);
                      confinement.confineEarly();
                      confinement.confineForRunning(Listening::isOver);
                      return doWhatIsAllowed(folder.path().string());
                  }),
                  0);
    }
}

TEST(LinuxConfinement, LeavesTheLinksAndFilesOfOtherProcesses) {
    EXPECT_EQ(inChild([] {
                  const pid_t watched = ::getppid();
                  LinuxConfinement confinement(localDisplay);
                  confinement.confineEarly();
                  confinement.confineForRunning(Listening::isOver);
                  const std::string folder = "/proc/" + std::to_string(watched);
                  std::array<char, 4096> link{};
                  if (::readlink((folder + "/exe").c_str(), link.data(), link.size()) <= 0)
                      return 1;
                  return ::open((folder + "/fdinfo").c_str(), O_RDONLY | O_DIRECTORY) < 0 ? 2 : 0;
              }),
              0);
}

TEST(LinuxConfinement, EndsTheProcessAtADeniedCallWhereATestWantsThat) {
    const auto endsAt = [](const Attempt& attempt) {
        return inChild([&] {
            LinuxConfinement confinement(localDisplay, Denial::endsTheProcess);
            confinement.confineEarly();
            confinement.confineForRunning(Listening::isOver);
            return errorOf(attempt) == attempt.error ? 0 : 1;
        });
    };
    EXPECT_EQ(endsAt(earlyAttempts()[0]), 1000 + SIGSYS);
    for (const Attempt& attempt : internetAttempts())
        EXPECT_EQ(endsAt(attempt), 1000 + SIGSYS);
    EXPECT_EQ(endsAt({"clone3", SYS_clone3, ENOSYS}), 0) << "it has another way";
}

#ifdef __x86_64__
TEST(LinuxConfinement, DeniesTheCallsOfOtherNumberings) {
    constexpr long numberOfX32 = 0x4000'0000 + SYS_getpid;
    EXPECT_EQ(inChild([] {
                  LinuxConfinement(localDisplay).confineEarly();
                  return errorOf({"x32", numberOfX32});
              }),
              EPERM);
    EXPECT_EQ(inChild([] {
                  LinuxConfinement(localDisplay).confineEarly();
                  long result = 20;  // getpid of the 32-bit architecture
                  asm volatile("int $0x80" : "+a"(result) : : "memory", "r8", "r9", "r10", "r11");
                  return static_cast<int>(-result);
              }),
              EPERM);
}
#endif

}  // namespace
}  // namespace vantor::linux_confinement_test

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "platform/linux/linux_machine.h"
#include "probes/process_reader.h"
#include "support/burner.h"
#include "support/live_child.h"
#include "support/private_mounts.h"

/// In a pid namespace of their own, tests may choose identifiers, and hide processes.
namespace vantor::live_process_namespace_test {
namespace {

using namespace std::chrono_literals;

const std::string notHere = "not here: ";

enum class Proc { own, outer };

/// Runs `work` as the first process of a pid namespace; what it complains of.
std::string inOwnNamespace(Proc proc, const std::string& procOptions,
                           const std::function<std::string()>& work) {
    int ends[2] = {-1, -1};
    if (::unshare(CLONE_NEWPID) != 0 || ::pipe(ends) != 0) return notHere + "no pid namespaces";
    const pid_t first = ::fork();
    if (first < 0) return "no first process";
    if (first == 0) {
        const bool isMounted =
            proc == Proc::outer || ::mount("proc", "/proc", "proc", 0, procOptions.c_str()) == 0;
        const std::string complaints = isMounted ? work() : notHere + "no /proc of its own";
        ::_exit(::write(ends[1], complaints.data(), complaints.size()) < 0 ? 1 : 0);
    }
    ::close(ends[1]);
    std::string complaints;
    char buffer[512];
    for (ssize_t count = 0; (count = ::read(ends[0], buffer, sizeof buffer)) > 0;)
        complaints.append(buffer, static_cast<std::size_t>(count));
    ::close(ends[0]);
    int status = 0;
    ::waitpid(first, &status, 0);
    return complaints + (status == 0 ? "" : "the first process failed");
}

void expectNoComplaints(Proc proc, const std::string& procOptions,
                        const std::function<std::string()>& work) {
    const ChildOutcome outcome =
        withPrivateMounts([&] { return inOwnNamespace(proc, procOptions, work); });
    if (!outcome.wasPossible) GTEST_SKIP() << "private mounts are not allowed here";
    if (outcome.complaints.starts_with(notHere)) GTEST_SKIP() << outcome.complaints;
    EXPECT_EQ(outcome.complaints, "");
}

const ProcessStats* find(const ProcessSample& sample, pid_t pid) {
    for (const ProcessStats& process : sample.all) {
        if (process.pid == pid) return &process;
    }
    return nullptr;
}

std::string seen(const ProcessSample& sample) {
    std::string text;
    for (const ProcessStats& process : sample.all)
        text += " " + std::to_string(process.pid);
    return text;
}

std::string reuseAnIdentifier() {
    ProcessReader reader(std::make_shared<LinuxMachine>());
    pid_t pid = 0;
    {
        const Burner former(1);
        pid = former.pid();
        reader.read();
        std::this_thread::sleep_for(300ms);
        const ProcessSample sample = reader.read();
        const ProcessStats* const row = find(sample, pid);
        if (!row || !(row->cpuPercent > 1)) return "the former one did not burn";
    }
    std::ofstream("/proc/sys/kernel/ns_last_pid") << pid - 1 << std::flush;
    const LiveChild latter(LiveChild::running("/bin/sleep"));
    if (latter.pid() != pid) return notHere + "identifiers cannot be chosen";
    if (!latter.waitUntilAsleepAs("sleep")) return "the latter one does not sleep";
    const ProcessSample sample = reader.read();
    const ProcessStats* const row = find(sample, pid);
    if (!row) return "the latter one is not listed";
    std::string complaints;
    if (row->cpuPercent != 0) complaints += "its share is " + std::to_string(row->cpuPercent);
    const std::string& command = row->command.string();
    if (!command.ends_with("/sleep") && !command.ends_with("busybox"))
        complaints += " it is called " + command;
    return complaints;
}

TEST(LiveProcessNamespace, AReusedIdentifierHasNoShareAndAFreshName) {
    if (::access("/bin/sleep", X_OK) != 0) GTEST_SKIP() << "there is no /bin/sleep";
    expectNoComplaints(Proc::own, "", reuseAnIdentifier);
}

/// Reads as a user who may not inspect the processes of root. One of those exists before the first
/// pass, another one is started between two.
std::string readAsNobody() {
    const LiveChild hidden;
    int toNobody[2] = {-1, -1}, fromNobody[2] = {-1, -1};
    if (::pipe(toNobody) != 0 || ::pipe(fromNobody) != 0) return "no pipes";
    const LiveChild nobody([&] {
        std::string complaints;
        if (::setgid(65534) != 0 || ::setuid(65534) != 0) complaints = notHere + "one user only";
        const std::string own = " " + std::to_string(::getpid());
        ProcessReader reader(std::make_shared<LinuxMachine>());
        reader.read();
        char order = 0;
        for (int pass = 0; pass < 3 && complaints.empty(); ++pass) {
            if (::write(fromNobody[1], "?", 1) != 1 || ::read(toNobody[0], &order, 1) != 1) break;
            const std::string text = seen(reader.read());
            if (text != own) complaints = "it saw" + text + " and is" + own;
        }
        complaints = "." + complaints;
        ::_exit(::write(fromNobody[1], complaints.data(), complaints.size()) < 0 ? 1 : 0);
    });
    std::string answer(512, '\0');
    std::unique_ptr<LiveChild> younger;
    for (;;) {
        const ssize_t count = ::read(fromNobody[0], answer.data(), answer.size());
        if (count < 1) return "it fell silent";
        if (answer[0] == '.') return answer.substr(1, static_cast<std::size_t>(count) - 1);
        younger = std::make_unique<LiveChild>();
        if (!younger->waitUntilAsleep() || ::write(toNobody[1], "!", 1) != 1) return "no order";
    }
}

TEST(LiveProcessNamespace, HiddenProcessesAreLeftOut) {
    expectNoComplaints(Proc::own, "hidepid=2", readAsNobody);
}

TEST(LiveProcessNamespace, ListedProcessesThatMayNotBeLookedAtAreLeftOut) {
    expectNoComplaints(Proc::own, "hidepid=1", readAsNobody);
}

/// In the /proc of the outer namespace, a process has another identifier than the one by which its
/// clock can be asked here; by that one, the share would be a stranger's.
std::string readTheOuterProc() {
    const Burner burner(1);
    ProcessReader reader(std::make_shared<LinuxMachine>());
    reader.read();
    std::this_thread::sleep_for(300ms);
    const ProcessSample sample = reader.read();
    const ProcessStats* const stranger = find(sample, burner.pid());
    if (stranger && stranger->cpuPercent > 1) return "a stranger has its share";
    const auto program = std::filesystem::read_symlink("/proc/self/exe").filename().string();
    for (const ProcessStats& process : sample.all) {
        if (process.name.string() == program && process.cpuPercent > 1) return {};
    }
    return "its share is missing";
}

TEST(LiveProcessNamespace, InTheProcOfAnotherNamespaceSharesAreNotMixedUp) {
    expectNoComplaints(Proc::outer, "", readTheOuterProc);
}

}  // namespace
}  // namespace vantor::live_process_namespace_test

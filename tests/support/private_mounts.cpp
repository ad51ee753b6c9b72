#include "support/private_mounts.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace vantor {

namespace {

constexpr int notPossible = 77;
constexpr unsigned secondsAllowed = 30;

[[noreturn]] void workInChild(int output, const std::function<std::string()>& work) {
    ::alarm(secondsAllowed);
    if (::unshare(CLONE_NEWNS) != 0 ||
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        ::_exit(notPossible);
    }
    const std::string complaints = work();
    const ssize_t written = ::write(output, complaints.data(), complaints.size());
    ::_exit(written < 0 ? 1 : 0);
}

}  // namespace

ChildOutcome withPrivateMounts(const std::function<std::string()>& work) {
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0) std::abort();
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child < 0) std::abort();
    if (child == 0) workInChild(ends[1], work);
    ::close(ends[1]);
    ChildOutcome outcome;
    char buffer[512];
    for (ssize_t count = 0; (count = ::read(ends[0], buffer, sizeof buffer)) > 0;)
        outcome.complaints.append(buffer, static_cast<std::size_t>(count));
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) {
        outcome.complaints += "it was ended by signal " + std::to_string(WTERMSIG(status));
    } else if (WEXITSTATUS(status) == notPossible) {
        outcome.wasPossible = false;
    } else if (WEXITSTATUS(status) != 0) {
        outcome.complaints += "it failed";
    }
    return outcome;
}

bool runQuietly(const std::string& commandLine) {
    return std::system((commandLine + " >/dev/null 2>&1").c_str()) == 0;
}

std::string quoted(const std::string& text) {
    std::string safe = "'";
    for (const char c : text)
        safe += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return safe + "'";
}

std::string outputOf(const std::string& commandLine) {
    FILE* const pipe = ::popen(("LC_ALL=C " + commandLine + " 2>/dev/null").c_str(), "r");
    if (!pipe) return {};
    std::string text;
    char buffer[4096];
    for (std::size_t count = 0; (count = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        text.append(buffer, count);
    ::pclose(pipe);
    return text;
}

}  // namespace vantor

#pragma once

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string>

// Not every system's header declares it.
extern "C" char** environ;

namespace vantor {

/// A program whose output is read until it has ended.
class Program {
  public:
    explicit Program(const char* path) {
        int ends[2] = {-1, -1};
        if (::pipe(ends) != 0) std::abort();
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        ::posix_spawn_file_actions_addclose(&actions, ends[0]);
        ::posix_spawn_file_actions_addclose(&actions, ends[1]);
        char* const arguments[] = {const_cast<char*>(path), nullptr};
        const int error = ::posix_spawn(&pid_, path, &actions, nullptr, arguments, environ);
        ::posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
        if (error != 0) pid_ = -1;
        output_ = ends[0];
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program() {
        if (pid_ > 0) {
            ::kill(pid_, SIGKILL);
            ::waitpid(pid_, nullptr, 0);
        }
        ::close(output_);
    }

    bool hasStarted() const { return pid_ > 0; }

    /// What it wrote by its end; the pipe closes when the process, all its threads included, is
    /// gone. Cut short after `limit`.
    std::string readToEnd(std::chrono::milliseconds limit) {
        const auto deadline = std::chrono::steady_clock::now() + limit;
        std::string text;
        char buffer[256];
        while (true) {
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
                deadline - std::chrono::steady_clock::now());
            pollfd waited{output_, POLLIN, 0};
            if (left.count() <= 0 || ::poll(&waited, 1, static_cast<int>(left.count())) <= 0) break;
            const ssize_t count = ::read(output_, buffer, sizeof buffer);
            if (count <= 0) break;
            text.append(buffer, static_cast<std::size_t>(count));
        }
        return text;
    }

    /// Its wait status once it is gone; call after its output has ended.
    int wait() {
        int status = -1;
        ::waitpid(pid_, &status, 0);
        pid_ = -1;
        return status;
    }

  private:
    pid_t pid_ = -1;
    int output_ = -1;
};

}  // namespace vantor

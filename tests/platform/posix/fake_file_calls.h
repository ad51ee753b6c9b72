#pragma once

#include <algorithm>
#include <cerrno>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "platform/posix/file_calls.h"

namespace vantor {

/// The system's own calls, some of which fail.
class FakeFileCalls : public FileCalls {
  public:
    bool hasNamelessFiles = true;
    std::size_t maxPerWrite = 1 << 20;        ///< what one call takes
    std::map<std::string, int> errors;        ///< by call: what it fails with, each time
    std::map<std::string, int> failsAtFirst;  ///< by call: how many times it is interrupted before
    std::map<std::string, int> made;          ///< by call
    std::function<void()> onSync;             ///< once
    std::function<void(int folder, const char* from)> onRename;

    int createNameless(int folder) override {
        if (!hasNamelessFiles) return fail(EOPNOTSUPP);
        return fails("createNameless") ? -1 : FileCalls::createNameless(folder);
    }
    int create(int folder, const char* name) override {
        return fails("create") ? -1 : FileCalls::create(folder, name);
    }
    ssize_t write(int file, const void* bytes, std::size_t count) override {
        return fails("write") ? -1 : FileCalls::write(file, bytes, std::min(count, maxPerWrite));
    }
    int lock(int file) override { return fails("lock") ? -1 : FileCalls::lock(file); }
    int sync(int file) override {
        if (onSync) std::exchange(onSync, nullptr)();
        return fails("sync") ? -1 : FileCalls::sync(file);
    }
    int close(int file) override {
        const int result = FileCalls::close(file);
        return fails("close") ? -1 : result;
    }
    int changeOwner(int file, uid_t owner, gid_t group) override {
        return fails("changeOwner") ? -1 : FileCalls::changeOwner(file, owner, group);
    }
    int changeMode(int file, mode_t mode) override {
        return fails("changeMode") ? -1 : FileCalls::changeMode(file, mode);
    }
    int link(int file, int folder, const char* name) override {
        return fails("link") ? -1 : FileCalls::link(file, folder, name);
    }
    int rename(int folder, const char* from, const char* to) override {
        if (onRename) onRename(folder, from);
        return fails("rename") ? -1 : FileCalls::rename(folder, from, to);
    }
    int remove(int folder, const char* name) override {
        return fails("remove") ? -1 : FileCalls::remove(folder, name);
    }

  private:
    static int fail(int error) {
        errno = error;
        return -1;
    }

    bool fails(const std::string& call) {
        ++made[call];
        if (failsAtFirst[call] > 0) {
            --failsAtFirst[call];
            return fail(call == "create" || call == "link" ? EEXIST : EINTR);
        }
        return errors.contains(call) && fail(errors[call]);
    }
};

}  // namespace vantor

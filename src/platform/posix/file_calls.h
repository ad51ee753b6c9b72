#pragma once

#include <sys/types.h>

#include <cstddef>
#include <functional>

namespace vantor {

/// The system calls by which a file is written. Each gives what the system's gives, with the reason
/// in errno; a test lets some of them fail. Any thread.
///
/// Those that not every system has, or has another way, are defined by its folder of adapters:
/// createNameless, sync, link, openUnlisted and withoutSizeSignal.
class FileCalls {
  public:
    virtual ~FileCalls() = default;

    /// Opens a folder in which names may be made but not listed.
    static int openUnlisted(const char* path);

    /// Does some writing, in which a file beyond the allowed size (ulimit -f) is an error of the
    /// write and not the end of the program.
    static void withoutSizeSignal(const std::function<void()>& writing);

    /// A new file of mode 0600 that has no name yet and is gone with its descriptor; ENOTSUP where
    /// there are no such files.
    virtual int createNameless(int folder);
    /// A new file of mode 0600 under a name that is not taken.
    virtual int create(int folder, const char* name);
    virtual ssize_t write(int file, const void* bytes, std::size_t count);
    /// Says that a file is being written to, until its last descriptor is closed. Does not wait;
    /// EWOULDBLOCK where another has said so.
    virtual int lock(int file);
    /// Waits until the disk has the file's bytes.
    virtual int sync(int file);
    virtual int close(int file);
    virtual int changeOwner(int file, uid_t owner, gid_t group);
    virtual int changeMode(int file, mode_t mode);
    /// Gives a nameless file a name that is not taken.
    virtual int link(int file, int folder, const char* name);
    virtual int rename(int folder, const char* from, const char* to);
    virtual int remove(int folder, const char* name);
};

}  // namespace vantor

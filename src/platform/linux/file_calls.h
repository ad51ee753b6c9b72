#pragma once

#include <sys/types.h>

#include <cstddef>

namespace vantor {

/// The system calls by which a file is written. Each gives what the system's gives, with the reason
/// in errno; a test lets some of them fail. Any thread.
class FileCalls {
  public:
    virtual ~FileCalls() = default;

    /// A new file of mode 0600 that has no name yet and is gone with its descriptor.
    virtual int createNameless(int folder);
    /// A new file of mode 0600 under a name that is not taken.
    virtual int create(int folder, const char* name);
    virtual ssize_t write(int file, const void* bytes, std::size_t count);
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

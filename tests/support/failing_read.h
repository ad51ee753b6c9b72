#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>

namespace vantor {

/// While this is there, `pread` of a file fails with an error, through whatever descriptor: what a
/// driver does whose sensor has nothing to tell (EAGAIN), is off (ENODATA) or does not answer
/// (EIO). No file of a folder does that: a pipe refuses to be read at a place, whatever is in it.
///
/// For programs that are linked with vantor_add_failing_reads. Any thread.
class FailingRead {
  public:
    /// Throws when there is no such file. `then` runs within each read that fails, on its thread.
    FailingRead(const std::filesystem::path& file, int error, std::function<void()> then = {});
    FailingRead(const FailingRead&) = delete;
    FailingRead& operator=(const FailingRead&) = delete;
    ~FailingRead();

    /// How many have failed.
    int count() const;

  private:
    int number_;
};

}  // namespace vantor

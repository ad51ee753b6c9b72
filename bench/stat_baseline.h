#pragma once

#include <cstddef>
#include <vector>

namespace vantor::bench {

/// The least that anyone who wants the processors' counters must do: fetch the text of /proc/stat
/// and look at each byte of it. What a reader costs beyond this is its own doing.
class StatBaseline {
  public:
    StatBaseline();
    StatBaseline(const StatBaseline&) = delete;
    StatBaseline& operator=(const StatBaseline&) = delete;
    ~StatBaseline();

    /// Reads again from a file that is kept open; gives the number of lines.
    std::size_t keepOpen();

    /// Opens, reads and closes; gives the number of lines.
    std::size_t openReadClose();

  private:
    std::size_t countLines(int fd);

    int fd_ = -1;
    std::vector<char> buffer_;
};

}  // namespace vantor::bench

#pragma once

#include <cstddef>
#include <vector>

namespace vantor::bench {

/// The least that anyone who wants the interfaces with their counters and addresses must do: ask
/// the kernel for both lists over a socket that is kept, receive them, and now and then read the
/// routes. Nothing is looked at but where a list ends. What a reader costs beyond this is its own
/// doing.
class NetworkBaseline {
  public:
    NetworkBaseline();
    NetworkBaseline(const NetworkBaseline&) = delete;
    NetworkBaseline& operator=(const NetworkBaseline&) = delete;
    ~NetworkBaseline();

    /// Both lists; gives how many bytes they were.
    std::size_t pass();

    /// The links alone, with their counters; gives how many bytes they were.
    std::size_t links();

    /// /proc/net/route, from a file that is kept open; gives how many bytes it was.
    std::size_t readRoutes();

  private:
    template <class Request>
    std::size_t receiveList(Request request);

    int socket_ = -1;
    int routes_ = -1;
    std::vector<std::byte> buffer_;
};

}  // namespace vantor::bench

#pragma once

#include <cstddef>
#include <vector>

namespace vantor::bench {

/// What the kernel takes to tell of the interfaces: their counters alone, which change all the
/// time, or the lists of links and addresses as well, each over a socket that is kept, and now and
/// then the routes. Nothing is looked at but where a list ends. What a reader costs beyond the
/// counters is its own doing.
class NetworkBaseline {
  public:
    NetworkBaseline();
    NetworkBaseline(const NetworkBaseline&) = delete;
    NetworkBaseline& operator=(const NetworkBaseline&) = delete;
    ~NetworkBaseline();

    /// Both lists; gives how many bytes they were.
    std::size_t pass();

    /// The counters alone; gives how many bytes they were.
    std::size_t counters();

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

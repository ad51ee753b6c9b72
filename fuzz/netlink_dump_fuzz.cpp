#include <linux/netlink.h>
#include <sys/socket.h>

#include <array>
#include <cstring>
#include <vector>

#include "platform/linux/netlink_dump.h"
#include "platform/linux/netlink_messages.h"

#include "require.h"

/// The input is what a kernel answers: datagrams, each with its length in two bytes before it. A
/// length of 0 ends what waits in one socket; the next one opened finds what follows.
namespace vantor {
namespace {

using fuzz::require;
using Bytes = std::span<const std::byte>;

class Kernel {
  public:
    explicit Kernel(Bytes input) : rest_(input) {}

    FileDescriptor open() {
        std::array<int, 2> ends{};
        require(::socketpair(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, ends.data()) ==
                0);
        own_.emplace_back(ends[1]);
        waiting_.clear();
        for (Bytes datagram = next(); !datagram.empty(); datagram = next()) {
            if (::send(ends[1], datagram.data(), datagram.size(), MSG_NOSIGNAL) < 0) break;
            waiting_.push_back(datagram);
        }
        return FileDescriptor{ends[0]};
    }

    std::uint32_t opened() const { return static_cast<std::uint32_t>(own_.size()); }

    /// Whether what waits in the last socket holds the undisturbed end of an answer to that
    /// question, and how many messages of the list come before it.
    bool answers(std::uint32_t sequence, std::size_t& count) const {
        count = 0;
        for (const Bytes datagram : waiting_) {
            NetlinkMessages messages(datagram);
            NetlinkMessage message;
            while (messages.next(message) == NetlinkMessages::Step::message) {
                if (message.sequence != sequence) continue;
                if ((message.flags & NLM_F_DUMP_INTR) != 0) return false;
                if (message.type == NLMSG_DONE) return true;
                if (message.type >= NLMSG_MIN_TYPE) ++count;
            }
        }
        return false;
    }

  private:
    Bytes next() {
        if (rest_.size() < 2) return {};
        std::uint16_t length = 0;
        std::memcpy(&length, rest_.data(), sizeof length);
        rest_ = rest_.subspan(sizeof length);
        const Bytes datagram = rest_.first(std::min<std::size_t>(length, rest_.size()));
        rest_ = rest_.subspan(datagram.size());
        return datagram;
    }

    Bytes rest_;
    std::vector<Bytes> waiting_;
    std::vector<FileDescriptor> own_;
};

struct Taker : NetlinkDump::Receiver {
    void restart() override {
        ++restarts;
        count = 0;
    }
    bool take(std::uint16_t type, Bytes) override {
        require(restarts > 0 && type >= NLMSG_MIN_TYPE);
        ++count;
        return true;
    }

    std::uint32_t restarts = 0;
    std::size_t count = 0;
};

}  // namespace
}  // namespace vantor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    Kernel kernel(std::as_bytes(std::span(data, size)));
    NetlinkDump client([&] { return kernel.open(); });
    Taker taker;
    std::array<std::byte, 32> request{};
    const bool isWhole = client.dump(request, taker);
    require(taker.restarts == kernel.opened() && taker.restarts >= 1 && taker.restarts <= 4);
    if (!isWhole) return 0;
    std::size_t expected = 0;
    require(kernel.answers(taker.restarts, expected));
    require(taker.count == expected);
    return 0;
}

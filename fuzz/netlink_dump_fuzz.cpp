#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <vector>

#include "platform/linux/network/netlink_dump.h"
#include "platform/linux/network/netlink_messages.h"

#include "require.h"

/// The input is what a kernel answers: datagrams, each with its length in two bytes before it. A
/// length of 0 ends what waits in one socket; the next one opened finds what follows. In place of a
/// length and bytes there may be a description of a message with a true header (see build).
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
                if (message.type == NLMSG_ERROR || message.type == NLMSG_OVERRUN) return false;
                if (message.type == NLMSG_DONE) return isZero(message.payload);
                if (message.type >= NLMSG_MIN_TYPE) ++count;
            }
        }
        return false;
    }

  private:
    static constexpr std::uint16_t isDescription = 0x8000;
    static constexpr std::uint16_t isFollowed = 0x4000;
    static constexpr std::uint16_t isNotZero = 0x100;
    static constexpr std::uint16_t isOfAnotherQuestion = 0x10;
    static constexpr std::uint16_t isInterrupted = 0x8;

    /// What a list's end says is its first four bytes; fewer say nothing.
    static bool isZero(Bytes payload) {
        std::uint32_t said = 0;
        if (payload.size() >= sizeof said) std::memcpy(&said, payload.data(), sizeof said);
        return said == 0;
    }

    /// A datagram of messages, each described by two bytes: what it is (three bits), what is wrong
    /// with it, how long it is (three bits), and whether another one follows.
    Bytes build(std::uint16_t description) {
        constexpr std::array<std::uint16_t, 8> types{NLMSG_DONE,  NLMSG_ERROR,    NLMSG_OVERRUN,
                                                     NLMSG_NOOP,  NLMSG_MIN_TYPE, RTM_NEWLINK,
                                                     RTM_NEWADDR, RTM_NEWROUTE};
        constexpr std::array<std::uint32_t, 8> sizes{0, 1, 4, 8, 100, 1000, 20'000, 60'000};
        std::vector<std::byte>& datagram = built_.emplace_back();
        for (;;) {
            nlmsghdr header{};
            header.nlmsg_type = types[description & 7];
            const std::uint32_t size = sizes[(description >> 5) & 7];
            // A few large ones are enough, and more take long.
            header.nlmsg_len = static_cast<std::uint32_t>(sizeof header);
            if (size <= room_) header.nlmsg_len += size;
            room_ -= std::min(size, room_);
            if ((description & isInterrupted) != 0) header.nlmsg_flags = NLM_F_DUMP_INTR;
            header.nlmsg_seq = opened() + ((description & isOfAnotherQuestion) != 0 ? 1 : 0);
            const std::size_t place = datagram.size();
            const bool isFilled = (description & isNotZero) != 0;
            datagram.resize(place + NLMSG_ALIGN(header.nlmsg_len), std::byte{isFilled});
            std::memcpy(datagram.data() + place, &header, sizeof header);
            if ((description & isFollowed) == 0 || rest_.size() < sizeof description) break;
            std::memcpy(&description, rest_.data(), sizeof description);
            rest_ = rest_.subspan(sizeof description);
        }
        return datagram;
    }

    Bytes next() {
        if (rest_.size() < 2) return {};
        std::uint16_t length = 0;
        std::memcpy(&length, rest_.data(), sizeof length);
        rest_ = rest_.subspan(sizeof length);
        if ((length & isDescription) != 0) return build(length);
        const Bytes datagram = rest_.first(std::min<std::size_t>(length, rest_.size()));
        rest_ = rest_.subspan(datagram.size());
        return datagram;
    }

    Bytes rest_;
    std::deque<std::vector<std::byte>> built_;
    std::uint32_t room_ = 250'000;  ///< bytes that may still be described
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
    // Takes the kernel longer than all the rest.
    if (size == 0) NetlinkDump::openRouteSocket();
    // A question without a header.
    Taker nothing;
    require(!client.dump(std::span(request).first(8), nothing) && nothing.restarts == 0);
    const bool isWhole = client.dump(request, taker);
    require(taker.restarts == kernel.opened() && taker.restarts >= 1 && taker.restarts <= 4);
    if (!isWhole) return 0;
    std::size_t expected = 0;
    require(kernel.answers(taker.restarts, expected));
    require(taker.count == expected);
    return 0;
}

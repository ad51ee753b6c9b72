#include "platform/linux/network/netlink_dump.h"

#include <linux/netlink.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "platform/linux/network/netlink_messages.h"

namespace vantor {

namespace {

constexpr int attempts = 4;
// The kernel makes its datagrams as large as the buffer that it has seen: up to this size without
// pages of their own, which it clears and gives back each time.
constexpr std::size_t netlinkDumpFirstBufferSize = 7680;
// For long lists, which would be many of these: the most the kernel fills at once.
constexpr std::size_t netlinkDumpLongListBufferSize = std::size_t{32} * 1024;
constexpr int manyDatagrams = 4;
constexpr std::size_t netlinkDumpLargestBufferSize = std::size_t{1024} * 1024;
constexpr timeval netlinkDumpPatience{2, 0};

/// What the message that ends a list says: 0, or a negative errno value.
int errorOf(std::span<const std::byte> payload) {
    int error = 0;
    if (payload.size() >= sizeof error) std::memcpy(&error, payload.data(), sizeof error);
    return error;
}

}  // namespace

FileDescriptor NetlinkDump::openRouteSocket() {
    FileDescriptor socket{::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE)};
    if (!socket) return socket;
    sockaddr_nl own{};
    own.nl_family = AF_NETLINK;
    const auto* const address = reinterpret_cast<const sockaddr*>(&own);
    if (::bind(socket.get(), address, sizeof own) != 0 ||
        ::setsockopt(socket.get(), SOL_SOCKET, SO_RCVTIMEO, &netlinkDumpPatience,
                     sizeof netlinkDumpPatience) != 0) {
        socket.reset();
    }
    return socket;
}

bool NetlinkDump::dump(std::span<std::byte> request, Receiver& receiver) {
    if (request.size() < sizeof(nlmsghdr)) return false;
    if (!buffer_) makeBuffer(netlinkDumpFirstBufferSize);
    Outcome outcome = Outcome::again;
    for (int attempt = 0; attempt < attempts && outcome == Outcome::again; ++attempt) {
        if (!socket_) socket_ = openSocket_();
        if (!socket_) return false;
        receiver.restart();
        outcome = dumpOnce(request, receiver);
        // What is left of an answer that was not read to its end goes with the socket.
        if (outcome != Outcome::whole) socket_.reset();
    }
    return outcome == Outcome::whole;
}

void NetlinkDump::makeBuffer(std::size_t size) {
    buffer_ = std::make_unique_for_overwrite<std::byte[]>(size);
    bufferSize_ = size;
}

NetlinkDump::Outcome NetlinkDump::dumpOnce(std::span<std::byte> request, Receiver& receiver) {
    if (!send(request)) return Outcome::failed;
    bool wasInterrupted = false;
    for (int datagrams = 1;; ++datagrams) {
        std::span<const std::byte> datagram;
        const Outcome received = receive(datagram);
        if (received != Outcome::whole) return received;
        NetlinkMessages messages(datagram);
        NetlinkMessage message;
        for (;;) {
            const auto step = messages.next(message);
            if (step == NetlinkMessages::Step::malformed) return Outcome::failed;
            if (step == NetlinkMessages::Step::end) break;
            if (message.sequence != sequence_) continue;
            wasInterrupted |= (message.flags & NLM_F_DUMP_INTR) != 0;
            if (message.type == NLMSG_ERROR) return Outcome::failed;
            if (message.type == NLMSG_OVERRUN) return Outcome::again;
            if (message.type == NLMSG_DONE) {
                if (wasInterrupted) return Outcome::again;
                const bool isWhole = errorOf(message.payload) == 0;
                if (datagrams > manyDatagrams && bufferSize_ < netlinkDumpLongListBufferSize)
                    makeBuffer(netlinkDumpLongListBufferSize);
                return isWhole ? Outcome::whole : Outcome::failed;
            }
            if (message.type >= NLMSG_MIN_TYPE && !receiver.take(message.type, message.payload)) {
                return Outcome::failed;
            }
        }
    }
}

bool NetlinkDump::send(std::span<std::byte> request) {
    nlmsghdr header{};
    std::memcpy(&header, request.data(), sizeof header);
    header.nlmsg_len = static_cast<std::uint32_t>(request.size());
    header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    header.nlmsg_seq = ++sequence_;
    std::memcpy(request.data(), &header, sizeof header);
    ssize_t count = 0;
    do {
        count = ::send(socket_.get(), request.data(), request.size(), MSG_NOSIGNAL);
    } while (count < 0 && errno == EINTR);
    return count == static_cast<ssize_t>(request.size());
}

/// One datagram of the kernel's. Those of other programs, which may write to any netlink socket,
/// are passed over.
NetlinkDump::Outcome NetlinkDump::receive(std::span<const std::byte>& datagram) {
    for (;;) {
        sockaddr_nl sender{};
        socklen_t senderSize = sizeof sender;
        // With this flag it gives the datagram's own length, also of one that did not fit.
        const ssize_t count = ::recvfrom(socket_.get(), buffer_.get(), bufferSize_, MSG_TRUNC,
                                         reinterpret_cast<sockaddr*>(&sender), &senderSize);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return Outcome::failed;
        if (senderSize == sizeof sender && sender.nl_pid != 0) continue;
        const auto length = static_cast<std::size_t>(count);
        if (length > bufferSize_) {
            const std::size_t wanted = std::max(length, 2 * bufferSize_);
            if (wanted > netlinkDumpLargestBufferSize) return Outcome::failed;
            makeBuffer(wanted);
            return Outcome::again;
        }
        datagram = {buffer_.get(), length};
        return Outcome::whole;
    }
}

}  // namespace vantor

#pragma once

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <array>
#include <deque>
#include <vector>

#include "platform/file_descriptor.h"
#include "support/netlink_bytes.h"

namespace vantor {

/// Plays the kernel behind netlink sockets: every socket that is opened finds its answers waiting
/// in it already. Answers to more than one question are told apart by their number.
struct FakeProcKernel {
    FileDescriptor open() {
        std::array<int, 2> ends{};
        if (sockets.empty() || ::socketpair(AF_UNIX, SOCK_DGRAM, 0, ends.data()) != 0) return {};
        const timeval patience{0, 10'000};
        ::setsockopt(ends[0], SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        own.emplace_back(ends[1]);
        for (const Bytes& datagram : sockets.front())
            EXPECT_GT(::send(ends[1], datagram.data(), datagram.size(), 0), 0);
        sockets.pop_front();
        return FileDescriptor{ends[0]};
    }

    static Bytes done(std::uint32_t sequence, int error = 0, int flags = 0) {
        return netlinkMessage(NLMSG_DONE, sequence, bytesOf(error), flags);
    }

    std::deque<std::vector<Bytes>> sockets;  ///< what is waiting in each
    std::vector<FileDescriptor> own;         ///< its ends of those that were opened
};

}  // namespace vantor

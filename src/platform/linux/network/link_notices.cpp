#include "platform/linux/network/link_notices.h"

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstddef>

namespace vantor {

namespace {

// More than its buffer can hold: a sender that never stops does not hold up the reader.
constexpr int mostAtOnce = 4096;

}  // namespace

FileDescriptor LinkNotices::openGroupSocket() {
    FileDescriptor socket{::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE)};
    if (!socket) return socket;
    sockaddr_nl own{};
    own.nl_family = AF_NETLINK;
    own.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR;
    if (::bind(socket.get(), reinterpret_cast<const sockaddr*>(&own), sizeof own) != 0)
        socket.reset();
    return socket;
}

bool LinkNotices::take() {
    if (!socket_) {
        socket_ = openSocket_();
        return true;
    }
    bool isAny = false;
    for (int i = 0; i < mostAtOnce; ++i) {
        std::byte first{};  // the rest of the datagram is dropped
        if (::recv(socket_.get(), &first, sizeof first, MSG_DONTWAIT) >= 0 || errno == ENOBUFS) {
            isAny = true;
            continue;
        }
        if (errno == EINTR) continue;
        if (errno == EAGAIN) return isAny;
        socket_.reset();
        return true;
    }
    return true;
}

}  // namespace vantor

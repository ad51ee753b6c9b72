#include "network_baseline.h"

#include <fcntl.h>
#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace vantor::bench {

namespace {

constexpr std::size_t receiveBufferSize = std::size_t{32} * 1024;

struct LinkRequest {
    nlmsghdr header{sizeof(LinkRequest), RTM_GETLINK, NLM_F_REQUEST | NLM_F_DUMP, 1, 0};
    ifinfomsg body{};
    rtattr attribute{sizeof(rtattr) + sizeof(std::uint32_t), IFLA_EXT_MASK};
    std::uint32_t mask = RTEXT_FILTER_SKIP_STATS;
};
struct CountersRequest {
    nlmsghdr header{sizeof(CountersRequest), RTM_GETSTATS, NLM_F_REQUEST | NLM_F_DUMP, 1, 0};
    if_stats_msg body{0, 0, 0, 0, IFLA_STATS_FILTER_BIT(IFLA_STATS_LINK_64)};
};
struct AddressRequest {
    nlmsghdr header{sizeof(AddressRequest), RTM_GETADDR, NLM_F_REQUEST | NLM_F_DUMP, 1, 0};
    ifaddrmsg body{};
};

[[noreturn]] void giveUp(const char* what) {
    std::perror(what);
    std::exit(2);
}

bool holdsEnd(const std::byte* bytes, std::size_t length) {
    nlmsghdr header{};
    while (length >= sizeof header) {
        std::memcpy(&header, bytes, sizeof header);
        if (header.nlmsg_type == NLMSG_DONE) return true;
        if (header.nlmsg_type == NLMSG_ERROR) giveUp("the kernel refuses a list");
        const std::size_t step = NLMSG_ALIGN(header.nlmsg_len);
        if (step == 0 || step >= length) return false;
        bytes += step;
        length -= step;
    }
    return false;
}

}  // namespace

NetworkBaseline::NetworkBaseline()
    : socket_(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE)),
      routes_(::open("/proc/net/route", O_RDONLY | O_CLOEXEC)),
      buffer_(receiveBufferSize) {
    if (socket_ < 0) giveUp("netlink");
    if (routes_ < 0) giveUp("/proc/net/route");
}

NetworkBaseline::~NetworkBaseline() {
    ::close(socket_);
    ::close(routes_);
}

std::size_t NetworkBaseline::pass() {
    return receiveList(LinkRequest{}) + receiveList(AddressRequest{});
}

std::size_t NetworkBaseline::counters() {
    return receiveList(CountersRequest{});
}

template <class Request>
std::size_t NetworkBaseline::receiveList(Request request) {
    if (::send(socket_, &request, sizeof request, 0) < 0) giveUp("send");
    std::size_t received = 0;
    for (;;) {
        const ssize_t count = ::recv(socket_, buffer_.data(), buffer_.size(), 0);
        if (count <= 0) giveUp("recv");
        const auto length = static_cast<std::size_t>(count);
        received += length;
        if (holdsEnd(buffer_.data(), length)) return received;
    }
}

std::size_t NetworkBaseline::readRoutes() {
    std::size_t length = 0;
    ssize_t count = 0;
    do {
        count = ::pread(routes_, buffer_.data(), buffer_.size(), static_cast<off_t>(length));
        if (count > 0) length += static_cast<std::size_t>(count);
    } while (count > 0);
    return length;
}

}  // namespace vantor::bench

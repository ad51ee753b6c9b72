#include "support/network_namespace.h"

#include <arpa/inet.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <thread>

namespace vantor {

using namespace std::chrono_literals;

std::string enterNetworkNamespace() {
    if (::geteuid() != 0) return "a network namespace needs root";
    if (std::system("command -v ip >/dev/null 2>&1") != 0) return "there is no ip command";
    if (::unshare(CLONE_NEWNET) != 0) {
        return std::string("no network namespace here: ") + std::strerror(errno);
    }
    if (!ip("link add probe0 type veth peer name probe1")) return "this kernel has no veth links";
    ip("link del probe0");
    for (const char* family : {"all", "default"}) {
        std::ofstream(std::string("/proc/sys/net/ipv6/conf/") + family + "/disable_ipv6") << 1;
    }
    return "";
}

bool ip(const std::string& arguments) {
    return std::system(("ip " + arguments + " >/dev/null 2>&1").c_str()) == 0;
}

/// A link drops what is sent until the kernel has noticed that its wire is there, which it does in
/// its own time.
bool waitUntilRunning(const std::string& name) {
    const FileDescriptor socket{::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)};
    ifreq request{};
    name.copy(request.ifr_name, IFNAMSIZ - 1);
    for (int i = 0; i < 500; ++i) {
        if (::ioctl(socket.get(), SIOCGIFFLAGS, &request) != 0) return false;
        if ((request.ifr_flags & IFF_RUNNING) != 0) {
            return ip("link set " + name + " up");  // returns when the kernel is done with the link
        }
        std::this_thread::sleep_for(10ms);
    }
    return false;
}

bool makePair(const std::string& name, const std::string& peer, const std::string& address) {
    const std::string network = address.substr(0, address.rfind('.'));
    return ip("link add " + name + " type veth peer name " + peer) &&
           ip("addr add " + address + "/24 dev " + name) && ip("link set " + name + " up") &&
           ip("link set " + peer + " up") && waitUntilRunning(name) && waitUntilRunning(peer) &&
           ip("neigh replace " + network + ".99 lladdr 02:00:00:00:00:99 dev " + name);
}

DatagramSender::DatagramSender(const std::string& address)
    : socket_(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_port = htons(9);
    ::inet_pton(AF_INET, address.c_str(), &to.sin_addr);
    if (::connect(socket_.get(), reinterpret_cast<const sockaddr*>(&to), sizeof to) != 0) {
        socket_.reset();
    }
}

std::uint64_t DatagramSender::send(std::uint64_t count) {
    static const std::array<char, payload> bytes{};
    std::uint64_t sent = 0;
    for (std::uint64_t i = 0; i < count; ++i) {
        const ssize_t length = ::send(socket_.get(), bytes.data(), bytes.size(), 0);
        if (length == static_cast<ssize_t>(bytes.size())) ++sent;
        // The other end reports that there is no listener: that answers the datagram before.
        if (length < 0 && errno == ECONNREFUSED) --i;
    }
    return sent;
}

}  // namespace vantor

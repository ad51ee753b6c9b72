#pragma once

#include <cstdint>
#include <string>

#include "platform/file_descriptor.h"

namespace vantor {

/// Moves this process into a network namespace of its own, with nothing in it but a loopback that
/// is down. Only while it has one thread. Empty, or why it cannot be done here.
std::string enterNetworkNamespace();

/// Runs `ip` with these arguments; whether it succeeded.
bool ip(const std::string& arguments);

/// Waits until a link that is up can send; false after five seconds or without such a link.
bool waitUntilRunning(const std::string& name);

/// Makes a pair of links that are each other's wire, both up and without IPv6's own chatter, the
/// first with that IPv4 address (of a /24) and a made-up neighbour at .99 of the same network.
bool makePair(const std::string& name, const std::string& peer, const std::string& address);

/// Sends datagrams from this namespace.
class DatagramSender {
  public:
    /// Bytes that a datagram has on the wire beside its payload: Ethernet, IPv4 and UDP headers.
    static constexpr std::uint64_t headers = 14 + 20 + 8;
    static constexpr std::uint64_t payload = 1400;

    explicit DatagramSender(const std::string& address);

    /// How many went out; each is headers + payload on the wire.
    std::uint64_t send(std::uint64_t count);

  private:
    FileDescriptor socket_;
};

}  // namespace vantor

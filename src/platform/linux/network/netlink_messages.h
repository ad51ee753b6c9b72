#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/linux/network/link_source.h"
#include "platform/linux/network/route_source.h"

namespace vantor {

/// A message of a netlink datagram (linux/netlink.h), its header taken apart.
struct NetlinkMessage {
    std::uint16_t type = 0;
    std::uint16_t flags = 0;
    std::uint32_t sequence = 0;
    std::span<const std::byte> payload;  ///< within the datagram
};

/// Walks the messages of one datagram. Pure.
class NetlinkMessages {
  public:
    enum class Step { message, end, malformed };

    explicit NetlinkMessages(std::span<const std::byte> datagram) : rest_(datagram) {}

    /// After `end` or `malformed` there is nothing more.
    Step next(NetlinkMessage& message);

  private:
    std::span<const std::byte> rest_;
};

/// Reads the payload of an RTM_NEWLINK: index, name, flags, and the 64-bit counters or else the
/// 32-bit ones. False when it is cut or malformed. A name that no link can have comes out empty.
/// Pure; replaces all of `link`, reusing its storage.
bool parseLink(std::span<const std::byte> payload, LinkSource::Link& link);

enum class AddressVerdict { address, notOurs, malformed };

/// Reads the payload of an RTM_NEWADDR: the machine's own end of the link (IFA_LOCAL), else
/// IFA_ADDRESS, which on a point-to-point link is the other end. `notOurs` is another family, or an
/// address without its bytes. Pure; replaces all of `address`.
AddressVerdict parseAddress(std::span<const std::byte> payload, LinkSource::Address& address);

/// Reads the payload of an RTM_NEWROUTE; of several next hops the first that is alive counts. False
/// when it is cut or malformed. Pure; replaces all of `route`.
bool parseRoute(std::span<const std::byte> payload, RouteSource::Route& route);

}  // namespace vantor

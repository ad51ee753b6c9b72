#pragma once

#include <optional>
#include <string_view>

namespace vantor {

/// The interface of the default route in the text of /proc/net/route: destination and mask 0, up,
/// not a refusal, and of these the one with the lowest metric, the first where several have it.
/// The loopback carries no default route. Absent when there is none; malformed and cut lines are
/// passed over. Pure; the name lies within `text`.
std::optional<std::string_view> ipv4DefaultInterface(std::string_view text);

/// The same for /proc/net/ipv6_route.
std::optional<std::string_view> ipv6DefaultInterface(std::string_view text);

}  // namespace vantor

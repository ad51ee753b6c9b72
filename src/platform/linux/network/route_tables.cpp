#include "platform/linux/network/route_tables.h"

#include <linux/ipv6_route.h>
#include <linux/route.h>

#include <array>
#include <charconv>
#include <cstdint>

namespace vantor {

namespace {

struct Route {
    std::string_view interface;
    std::uint32_t metric = 0;
};

template <std::size_t count>
using Fields = std::array<std::string_view, count>;

/// The first `count` words of a line; false when it has fewer.
template <std::size_t count>
bool split(std::string_view line, Fields<count>& fields) {
    constexpr std::string_view blanks = " \t";
    for (std::string_view& field : fields) {
        const auto start = line.find_first_not_of(blanks);
        if (start == std::string_view::npos) return false;
        line.remove_prefix(start);
        field = line.substr(0, line.find_first_of(blanks));
        line.remove_prefix(field.size());
    }
    return true;
}

template <class Number>
std::optional<Number> number(std::string_view text, int base) {
    Number value{};
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, value, base);
    if (error != std::errc{} || rest != end) return std::nullopt;
    return value;
}

bool isZero(std::string_view hexadecimal) {
    return hexadecimal.find_first_not_of('0') == std::string_view::npos;
}

bool isUsable(std::string_view flags) {
    const auto bits = number<std::uint32_t>(flags, 16);
    return bits && (*bits & RTF_UP) != 0 && (*bits & RTF_REJECT) == 0;
}

bool canBePrimary(std::string_view interface) {
    constexpr std::size_t maxNameLength = 15;
    // A route that refuses has a star for its interface.
    return interface.size() <= maxNameLength && interface != "lo" && interface != "*";
}

/// Iface Destination Gateway Flags RefCnt Use Metric Mask ..., numbers hexadecimal but the metric,
/// which is 32 bits printed as if they had a sign.
std::optional<Route> ipv4Default(std::string_view line) {
    Fields<8> fields;
    if (!split(line, fields)) return std::nullopt;
    const auto [interface, destination, gateway, flags, references, use, metric, mask] = fields;
    if (destination.size() != 8 || !isZero(destination) || mask.size() != 8 || !isZero(mask)) {
        return std::nullopt;
    }
    const auto value = number<std::int64_t>(metric, 10);
    if (!value || !isUsable(flags) || !canBePrimary(interface)) return std::nullopt;
    return Route{interface, static_cast<std::uint32_t>(*value)};
}

/// destination prefix source prefix gateway metric references use flags interface, all hexadecimal.
std::optional<Route> ipv6Default(std::string_view line) {
    Fields<10> fields;
    if (!split(line, fields)) return std::nullopt;
    const auto& [destination, prefix, source, sourcePrefix, gateway, metric, references, use, flags,
                 interface] = fields;
    if (destination.size() != 32 || !isZero(destination) || prefix.size() != 2 || !isZero(prefix)) {
        return std::nullopt;
    }
    const auto value = number<std::uint32_t>(metric, 16);
    if (!value || !isUsable(flags) || !canBePrimary(interface)) return std::nullopt;
    return Route{interface, *value};
}

template <class Parse>
std::optional<std::string_view> best(std::string_view text, Parse parse) {
    std::optional<Route> best;
    // A line without its end was cut: it does not count.
    for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        const auto route = parse(text.substr(0, end));
        if (route && (!best || route->metric < best->metric)) best = route;
        text.remove_prefix(end + 1);
    }
    return best ? std::optional(best->interface) : std::nullopt;
}

}  // namespace

std::optional<std::string_view> ipv4DefaultInterface(std::string_view text) {
    return best(text, ipv4Default);
}

std::optional<std::string_view> ipv6DefaultInterface(std::string_view text) {
    return best(text, ipv6Default);
}

}  // namespace vantor

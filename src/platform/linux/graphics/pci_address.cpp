#include "platform/linux/graphics/pci_address.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace vantor {

namespace {

template <class Number>
std::optional<Number> parseHex(std::string_view text) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number, 16);
    if (text.empty() || error != std::errc{} || rest != end) return std::nullopt;
    return number;
}

}  // namespace

std::uint64_t PCIAddress::number() const {
    return std::uint64_t{domain} << 16 | std::uint64_t{bus} << 8 |
           (std::uint64_t{device} << 3 & 0xF8U) | (function & 0x7U);
}

std::string PCIAddress::text() const {
    std::array<char, 32> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%04x:%02x:%02x.%x", domain, bus,
                                     device, function);
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

std::optional<PCIAddress> parsePCIAddress(std::string_view text) {
    constexpr std::size_t tail = 8;  // ":01:00.0"
    if (text.size() < 4 + tail || text.size() > 8 + tail) return std::nullopt;
    const std::string_view place = text.substr(text.size() - tail);
    if (place[0] != ':' || place[3] != ':' || place[6] != '.') return std::nullopt;
    const auto domain = parseHex<std::uint32_t>(text.substr(0, text.size() - tail));
    const auto bus = parseHex<std::uint8_t>(place.substr(1, 2));
    const auto device = parseHex<std::uint8_t>(place.substr(4, 2));
    const auto function = parseHex<std::uint8_t>(place.substr(7, 1));
    if (!domain || !bus || !device || !function) return std::nullopt;
    if (*device > 31 || *function > 7) return std::nullopt;
    return PCIAddress{*domain, *bus, *device, *function};
}

std::optional<PCIDeviceNumbers> findPCIDevice(std::string_view text, const PCIAddress& address) {
    const auto wanted = static_cast<std::uint16_t>(address.number() & 0xFFFFU);
    std::optional<PCIDeviceNumbers> found;
    while (!text.empty()) {
        const auto end = text.find('\n');
        if (end == std::string_view::npos) break;  // cut
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        // "0010\t10de2484\t1d\t..."
        if (line.size() < 14 || line[4] != '\t' || line[13] != '\t') continue;
        const auto place = parseHex<std::uint16_t>(line.substr(0, 4));
        const auto vendor = parseHex<std::uint16_t>(line.substr(5, 4));
        const auto device = parseHex<std::uint16_t>(line.substr(9, 4));
        if (place != wanted || !vendor || !device) continue;
        const PCIDeviceNumbers numbers{*vendor, *device};
        if (found && *found != numbers) return std::nullopt;
        found = numbers;
    }
    return found;
}

}  // namespace vantor

#include "platform/linux/network/address_text.h"

#include <charconv>
#include <cstddef>

namespace vantor {

namespace {

constexpr std::size_t groupCount = 8;

using Groups = std::array<std::uint16_t, groupCount>;

/// Groups that are left out of the text; none where the length is 0.
struct Zeros {
    std::size_t start = 0;
    std::size_t length = 0;
};

/// The longest row of zeros, the first of equal ones; a single zero is written.
Zeros longestZeros(const Groups& groups) {
    Zeros longest;
    Zeros current;
    for (std::size_t i = 0; i < groupCount; ++i) {
        if (groups[i] != 0) continue;
        const bool goesOn = current.length > 0 && current.start + current.length == i;
        current = goesOn ? Zeros{current.start, current.length + 1} : Zeros{i, 1};
        if (current.length > longest.length) longest = current;
    }
    return longest.length > 1 ? longest : Zeros{};
}

char* write(char* at, char* end, unsigned number, int base) {
    return std::to_chars(at, end, number, base).ptr;
}

char* writeIPv4(char* at, char* end, std::span<const std::uint8_t> bytes) {
    for (std::size_t i = 0; i < 4; ++i) {
        if (i > 0) *at++ = '.';
        at = write(at, end, bytes[i], 10);
    }
    return at;
}

/// ::a.b.c.d and ::ffff:a.b.c.d, which hold an address of the older protocol. What ends in a group
/// of its own, as ::1, is none.
bool endsInIPv4(const Groups& groups, const Zeros& zeros) {
    if (zeros.start != 0) return false;
    return zeros.length == 6 || (zeros.length == 5 && groups[5] == 0xFFFF);
}

std::string_view finish(AddressText& room, char* end) {
    *end = '\0';
    return {room.data(), static_cast<std::size_t>(end - room.data())};
}

}  // namespace

std::string_view ipv4Text(std::span<const std::uint8_t, 4> bytes, AddressText& room) {
    return finish(room, writeIPv4(room.data(), room.data() + room.size(), bytes));
}

std::string_view ipv6Text(std::span<const std::uint8_t, 16> bytes, AddressText& room) {
    Groups groups{};
    for (std::size_t i = 0; i < groupCount; ++i)
        groups[i] = static_cast<std::uint16_t>(bytes[2 * i] << 8 | bytes[2 * i + 1]);
    const Zeros zeros = longestZeros(groups);
    char* at = room.data();
    char* const end = at + room.size();
    for (std::size_t i = 0; i < groupCount; ++i) {
        if (zeros.length > 0 && i == zeros.start) {
            *at++ = ':';
            i += zeros.length - 1;
            if (i + 1 == groupCount) *at++ = ':';
            continue;
        }
        if (i > 0) *at++ = ':';
        if (i == 6 && endsInIPv4(groups, zeros)) {
            at = writeIPv4(at, end, bytes.last<4>());
            break;
        }
        at = write(at, end, groups[i], 16);
    }
    return finish(room, at);
}

}  // namespace vantor

#include "probes/standard_order.h"

#include <algorithm>
#include <cstdint>

namespace vantor {

namespace {

bool isOrderedDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view takeDigits(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isOrderedDigit);
    const auto count = static_cast<std::size_t>(end - text.begin());
    const std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

std::string_view withoutLeadingZeros(std::string_view digits) {
    const auto first = digits.find_first_not_of('0');
    return first == std::string_view::npos ? std::string_view{} : digits.substr(first);
}

int sign(int comparison) {
    return (comparison > 0) - (comparison < 0);
}

/// By value, however many digits there are.
int compareNumbers(std::string_view a, std::string_view b) {
    a = withoutLeadingZeros(a);
    b = withoutLeadingZeros(b);
    if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
    return sign(a.compare(b));
}

/// Takes one code point; a byte that begins none stands for itself.
std::uint32_t takeCodePoint(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 1 || length > text.size()) {
        text.remove_prefix(1);
        return lead;
    }
    std::uint32_t point = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i)
        point = point << 6 | (static_cast<unsigned char>(text[i]) & 0x3FU);
    text.remove_prefix(length);
    return point;
}

/// The small letter of the scripts whose capitals lie at a fixed distance: Latin, Greek, Cyrillic.
std::uint32_t folded(std::uint32_t point) {
    const auto within = [point](std::uint32_t first, std::uint32_t last) {
        return point >= first && point <= last;
    };
    if (within('A', 'Z')) return point + 32;
    if (within(0xC0, 0xDE) && point != 0xD7) return point + 32;
    if (within(0x391, 0x3A9)) return point + 32;
    if (within(0x410, 0x42F)) return point + 32;
    if (within(0x400, 0x40F)) return point + 80;
    return point;
}

int compareWithoutCase(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        if (isOrderedDigit(a.front()) && isOrderedDigit(b.front())) {
            if (const int order = compareNumbers(takeDigits(a), takeDigits(b))) return order;
            continue;
        }
        const std::uint32_t x = folded(takeCodePoint(a));
        const std::uint32_t y = folded(takeCodePoint(b));
        if (x != y) return x < y ? -1 : 1;
    }
    return static_cast<int>(b.empty()) - static_cast<int>(a.empty());
}

}  // namespace

int compareStandard(std::string_view a, std::string_view b) {
    if (const int order = compareWithoutCase(a, b)) return order;
    // Small letters first, as dictionaries have it; fewer zeros first.
    return -sign(a.compare(b));
}

}  // namespace vantor

#include "probes/gpu_names.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "model/utf8.h"

namespace vantor {

namespace {

struct CharacterRange {
    std::uint32_t first;
    std::uint32_t last;
};

/// Blanks, punctuation and symbols past ASCII, in ascending order.
constexpr std::array<CharacterRange, 18> symbols{{
    {0x80, 0xA9},
    {0xAB, 0xB4},
    {0xB6, 0xB9},
    {0xBB, 0xBF},
    {0xD7, 0xD7},
    {0xF7, 0xF7},
    {0x2000, 0x2BFF},
    {0x2E00, 0x2E7F},
    {0x3000, 0x3004},
    {0x3008, 0x3020},
    {0xE000, 0xF8FF},
    {0xFE00, 0xFE6F},
    {0xFF00, 0xFF0F},
    {0xFF1A, 0xFF20},
    {0xFF3B, 0xFF40},
    {0xFF5B, 0xFF65},
    {0xFFE0, 0xFFFF},
    {0x1F000, 0x1FAFF},
}};

bool isSymbol(std::uint32_t character) {
    const auto* const range =
        std::find_if(symbols.begin(), symbols.end(),
                     [character](const CharacterRange& r) { return character <= r.last; });
    return range != symbols.end() && character >= range->first;
}

char lowerCased(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// How many bytes of well-formed UTF-8 a character has that begins so.
std::size_t lengthOfCharacter(unsigned char lead) {
    return lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

std::uint32_t characterOf(std::string_view bytes) {
    // A lead byte of n bytes has n ones and a zero before the first bits of the character.
    auto character =
        static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[0])) & (0x7FU >> bytes.size());
    for (const char byte : bytes.substr(1))
        character = (character << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    return character;
}

}  // namespace

std::string normalizedGPUName(std::string_view name) {
    std::string mended;
    std::string_view rest = validUTF8(name, mended);
    std::string normalized;
    normalized.reserve(rest.size());
    while (!rest.empty()) {
        const std::size_t length = lengthOfCharacter(static_cast<unsigned char>(rest[0]));
        const char byte = lowerCased(rest[0]);
        if (length > 1) {
            const std::string_view bytes = rest.substr(0, length);
            if (!isSymbol(characterOf(bytes))) normalized += bytes;
        } else if ((byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9')) {
            normalized += byte;
        }
        rest.remove_prefix(length);
    }
    return normalized;
}

bool areSimilarNames(std::string_view one, std::string_view other) {
    return one.find(other) != one.npos || other.find(one) != other.npos;
}

std::optional<std::string> deviceName(const PropertyValue* model) {
    if (!model) return std::nullopt;
    if (const std::string* const text = model->text()) {
        return text->empty() ? std::nullopt : std::optional(repairedUTF8(*text));
    }
    const PropertyValue::Data* const data = model->data();
    if (!data) return std::nullopt;
    std::string name;
    for (const std::byte byte : *data) {
        if (byte == std::byte{0}) break;
        name += static_cast<char>(byte);
    }
    if (name.empty() || !isUTF8(name)) return std::nullopt;
    return name;
}

}  // namespace vantor

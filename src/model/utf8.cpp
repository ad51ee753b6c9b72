#include "model/utf8.h"

#include <algorithm>
#include <cstddef>

namespace vantor {

namespace {

struct Sequence {
    std::size_t length = 1;  ///< bytes that belong together, at least one
    bool isWhole = false;
};

/// The length of the first character, or of the bytes that could have begun one. There is a first
/// byte.
Sequence leadingSequence(std::string_view bytes) {
    // Not by the view's operator, which compares each index with the size once more.
    const char* const data = bytes.data();
    const auto at = [data](std::size_t i) { return static_cast<unsigned char>(data[i]); };
    const unsigned char lead = at(0);
    if (lead < 0x80) return {1, true};
    if (lead < 0xC2 || lead > 0xF4) return {1, false};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    // The second byte's range excludes overlong forms, surrogates and too large values.
    unsigned char lowest = 0x80, highest = 0xBF;
    if (lead == 0xE0) lowest = 0xA0;
    if (lead == 0xED) highest = 0x9F;
    if (lead == 0xF0) lowest = 0x90;
    if (lead == 0xF4) highest = 0x8F;
    if (bytes.size() < 2 || at(1) < lowest || at(1) > highest) return {1, false};
    for (std::size_t k = 2; k < length; ++k) {
        if (k >= bytes.size() || (at(k) & 0xC0) != 0x80) return {k, false};
    }
    return {length, true};
}

}  // namespace

bool isUTF8(std::string_view bytes) {
    const auto isASCII = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    while (true) {
        const auto other = std::find_if_not(bytes.begin(), bytes.end(), isASCII);
        bytes.remove_prefix(static_cast<std::size_t>(other - bytes.begin()));
        if (bytes.empty()) return true;
        const Sequence sequence = leadingSequence(bytes);
        if (!sequence.isWhole) return false;
        bytes.remove_prefix(sequence.length);
    }
}

std::string_view validUTF8(std::string_view bytes, std::string& mended) {
    if (isUTF8(bytes)) return bytes;
    mended.clear();
    while (!bytes.empty()) {
        const Sequence sequence = leadingSequence(bytes);
        mended += sequence.isWhole ? bytes.substr(0, sequence.length) : "\xEF\xBF\xBD";
        bytes.remove_prefix(sequence.length);
    }
    return mended;
}

std::string repairedUTF8(std::string_view bytes) {
    std::string mended;
    return std::string(validUTF8(bytes, mended));
}

std::string distinctUTF8(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    while (!bytes.empty()) {
        const Sequence sequence = leadingSequence(bytes);
        for (const char byte : bytes.substr(0, sequence.length)) {
            const auto value = static_cast<unsigned char>(byte);
            if (!sequence.isWhole) result += "\\x";
            if (!sequence.isWhole) result += digits[value >> 4U];
            result += sequence.isWhole ? byte : digits[value & 0xFU];
        }
        bytes.remove_prefix(sequence.length);
    }
    return result;
}

}  // namespace vantor

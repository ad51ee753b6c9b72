#include "settings/ini_escapes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace vantor {

namespace {

constexpr std::string_view lowerHex = "0123456789abcdef";
constexpr std::string_view upperHex = "0123456789ABCDEF";

// Written, and what it stands for.
constexpr std::array<std::pair<char, char>, 7> shortEscapes{
    {{'a', '\a'}, {'b', '\b'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'v', '\v'}}};

bool isHexDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isPlainInKey(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
}

void appendUTF8(std::string& text, std::uint32_t code) {
    const auto add = [&](std::uint32_t byte) { text += static_cast<char>(byte); };
    if (code >= 0xd800 && (code <= 0xdfff || code > 0xffff)) code = 0xfffd;
    if (code < 0x80) {
        add(code);
    } else if (code < 0x800) {
        add(0xc0 | code >> 6);
        add(0x80 | (code & 0x3f));
    } else {
        add(0xe0 | code >> 12);
        add(0x80 | (code >> 6 & 0x3f));
        add(0x80 | (code & 0x3f));
    }
}

/// The number at the beginning of `digits`, which loses it; more than fits is no character.
std::uint32_t takeCode(std::string_view& digits, std::size_t most, int base) {
    std::uint32_t number = 0;
    const char* const end = digits.data() + std::min(digits.size(), most);
    const auto [rest, error] = std::from_chars(digits.data(), end, number, base);
    digits.remove_prefix(static_cast<std::size_t>(rest - digits.data()));
    return error == std::errc{} ? number : 0xfffd;
}

/// What follows a backslash.
void takeEscape(std::string_view& rest, std::string& text) {
    if (rest.empty()) return;
    const char c = rest.front();
    if (c >= '0' && c <= '7') return appendUTF8(text, takeCode(rest, rest.size(), 8));
    rest.remove_prefix(1);
    if (c == 'x' && !rest.empty() && isHexDigit(rest.front()))
        return appendUTF8(text, takeCode(rest, rest.size(), 16));
    for (const auto& [written, meant] : shortEscapes) {
        if (c == written) {
            text += meant;
            return;
        }
    }
    text += c;
}

void trimBlanksFrom(std::string& text, std::size_t begin) {
    while (text.size() > begin && (text.back() == ' ' || text.back() == '\t'))
        text.pop_back();
}

}  // namespace

std::string escapedIniKey(std::string_view key) {
    std::string written;
    for (const char c : key) {
        if (isPlainInKey(c)) {
            written += c;
        } else if (c == '/') {
            written += '\\';
        } else {
            const auto byte = static_cast<unsigned char>(c);
            written.append({'%', upperHex[byte >> 4], upperHex[byte & 15]});
        }
    }
    return written;
}

std::string unescapedIniKey(std::string_view written) {
    std::string key;
    while (!written.empty()) {
        const char c = written.front();
        written.remove_prefix(1);
        const bool isLong = c == '%' && written.starts_with('U');
        const std::size_t digits = isLong ? 4 : 2;
        const auto place = written.substr(isLong ? 1 : 0, digits);
        if (c == '%' && place.size() == digits &&
            place.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos) {
            std::string_view number = place;
            appendUTF8(key, takeCode(number, digits, 16));
            written.remove_prefix(digits + (isLong ? 1 : 0));
        } else {
            key += c == '\\' ? '/' : c;
        }
    }
    return key;
}

std::string escapedIniText(std::string_view text) {
    std::string written;
    bool needsQuotes = text.starts_with(' ') || text.ends_with(' ');
    bool followsNumber = false;  // which a digit would belong to
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        const auto* known = shortEscapes.begin();
        while (known != shortEscapes.end() && known->second != c)
            ++known;
        const bool isNumber = known == shortEscapes.end() &&
                              (code < 0x20 || code == 0x7f || (followsNumber && isHexDigit(c)));
        if (known != shortEscapes.end()) {
            written.append({'\\', known->first});
        } else if (isNumber) {
            written += "\\x";
            if (code > 15) written += lowerHex[code >> 4];
            written += lowerHex[code & 15];
        } else {
            if (c == '"' || c == '\\') written += '\\';
            written += c;
        }
        needsQuotes = needsQuotes || c == ';' || c == ',' || c == '=';
        followsNumber = isNumber;
    }
    return needsQuotes ? '"' + written + '"' : written;
}

std::optional<std::string> unescapedIniText(std::string_view written) {
    std::string text;
    bool isQuoted = false;
    std::size_t kept = 0;  // of the text, whatever follows
    while (!written.empty()) {
        const char c = written.front();
        written.remove_prefix(1);
        if (c == '\\') {
            takeEscape(written, text);
            kept = text.size();
        } else if (c == '"') {
            isQuoted = !isQuoted;
            if (isQuoted) trimBlanksFrom(text, kept);
            kept = text.size();
        } else if (c == ',' && !isQuoted) {
            return std::nullopt;
        } else if (isQuoted || !text.empty() || (c != ' ' && c != '\t')) {
            text += c;
        }
    }
    if (!isQuoted) trimBlanksFrom(text, kept);
    return text;
}

}  // namespace vantor

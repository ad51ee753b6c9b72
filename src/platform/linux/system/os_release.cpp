#include "platform/linux/system/os_release.h"

#include <algorithm>

#include "platform/linux/files/trimmed.h"

namespace vantor {

namespace {

/// Inside of double quotes a backslash is one, but before these.
bool isEscapable(char letter) {
    return std::string_view("\"\\$`").find(letter) != std::string_view::npos;
}

/// The text between the `quote` it begins with and the one it ends with.
std::optional<std::string> unquote(std::string_view text, char quote) {
    std::string value;
    std::size_t at = 1;
    for (; at < text.size() && text[at] != quote; ++at) {
        const bool escapes =
            quote == '"' && text[at] == '\\' && at + 1 < text.size() && isEscapable(text[at + 1]);
        if (escapes) ++at;
        value += text[at];
    }
    if (at + 1 != text.size()) return std::nullopt;  // never closed, or something comes after
    return value;
}

std::optional<std::string> readBareValue(std::string_view text) {
    std::string value;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\') {
            if (++at == text.size()) return std::nullopt;
        } else if (std::string_view(" \t\"'`$;&|<>()").find(text[at]) != std::string_view::npos) {
            return std::nullopt;  // to a shell this would not be one word
        }
        value += text[at];
    }
    return value;
}

std::optional<std::string> readValue(std::string_view text) {
    text = trimmed(text);
    const bool isQuoted = text.starts_with('"') || text.starts_with('\'');
    auto value = isQuoted ? unquote(text, text.front()) : readBareValue(text);
    if (!value) return std::nullopt;
    const bool hasControls = std::any_of(value->begin(), value->end(), [](char letter) {
        return static_cast<unsigned char>(letter) < 0x20 || letter == 0x7F;
    });
    if (hasControls || trimmed(*value).empty()) return std::nullopt;
    return std::string(trimmed(*value));
}

}  // namespace

std::optional<std::string> findInOSRelease(std::string_view text, std::string_view key) {
    std::optional<std::string> value;
    while (!text.empty()) {
        const auto lineEnd = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, lineEnd));
        text.remove_prefix(lineEnd == std::string_view::npos ? text.size() : lineEnd + 1);
        const auto equals = line.find('=');
        if (equals == std::string_view::npos || line.substr(0, equals) != key) continue;
        value = readValue(line.substr(equals + 1));
    }
    return value;
}

std::string operatingSystemNameIn(std::string_view text) {
    if (auto name = findInOSRelease(text, "PRETTY_NAME")) return *std::move(name);
    auto name = findInOSRelease(text, "NAME");
    if (!name) return "Linux";
    if (const auto version = findInOSRelease(text, "VERSION")) *name += ' ' + *version;
    return *std::move(name);
}

}  // namespace vantor

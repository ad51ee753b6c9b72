#include "platform/linux/storage/udev_data.h"

#include <charconv>

namespace vantor {

namespace {

/// Blanks and such are written as "\x20".
std::string decoded(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    while (!text.empty()) {
        unsigned code = 0;
        if (text.size() >= 4 && text.starts_with("\\x")) {
            const auto [end, error] = std::from_chars(text.data() + 2, text.data() + 4, code, 16);
            if (error == std::errc{} && end == text.data() + 4) {
                plain += static_cast<char>(static_cast<unsigned char>(code));
                text.remove_prefix(4);
                continue;
            }
        }
        plain += text.front();
        text.remove_prefix(1);
    }
    return plain;
}

std::optional<std::string_view> findProperty(std::string_view text, std::string_view entry) {
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        if (line.starts_with(entry)) return line.substr(entry.size());
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> labelInUdevData(std::string_view text) {
    std::string label;
    if (const auto encoded = findProperty(text, "E:ID_FS_LABEL_ENC=")) {
        label = decoded(*encoded);
    } else if (const auto plain = findProperty(text, "E:ID_FS_LABEL=")) {
        label = *plain;
    }
    if (label.empty()) return std::nullopt;
    return label;
}

}  // namespace vantor

#include "platform/linux/storage/mount_table.h"

#include <charconv>
#include <cstddef>
#include <optional>

namespace vantor {

namespace {

/// Takes what stands before the next blank. Two blanks in a row hold an empty field: the source may
/// be one.
std::optional<std::string_view> takeMountField(std::string_view& line) {
    if (line.data() == nullptr) return std::nullopt;
    const auto end = line.find(' ');
    const std::string_view field = line.substr(0, end);
    line = end == std::string_view::npos ? std::string_view{} : line.substr(end + 1);
    return field;
}

template <class T>
bool readNumber(std::string_view text, T& number) {
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    return error == std::errc{} && end == last;
}

bool takeNumber(std::string_view& line, std::uint64_t& number) {
    const auto field = takeMountField(line);
    return field && readNumber(*field, number);
}

bool takeDevice(std::string_view& line, Mount& mount) {
    const auto field = takeMountField(line);
    if (!field) return false;
    const auto colon = field->find(':');
    return colon != std::string_view::npos && readNumber(field->substr(0, colon), mount.major) &&
           readNumber(field->substr(colon + 1), mount.minor);
}

bool takeText(std::string_view& line, std::string_view& text) {
    const auto field = takeMountField(line);
    if (!field) return false;
    text = *field;
    return true;
}

bool skipOptionalFields(std::string_view& line) {
    while (const auto field = takeMountField(line)) {
        if (*field == "-") return true;
    }
    return false;
}

bool parseMount(std::string_view line, Mount& mount) {
    return takeNumber(line, mount.id) && takeNumber(line, mount.parent) &&
           takeDevice(line, mount) && takeText(line, mount.root) && !mount.root.empty() &&
           takeText(line, mount.mountPoint) && mount.mountPoint.starts_with('/') &&
           takeText(line, mount.options) && skipOptionalFields(line) &&
           takeText(line, mount.type) && !mount.type.empty() && takeText(line, mount.source) &&
           takeText(line, mount.superOptions);
}

bool isOctal(char c) {
    return c >= '0' && c <= '7';
}

}  // namespace

void parseMountTable(std::string_view text, std::vector<Mount>& mounts) {
    mounts.clear();
    // What follows the last line end was cut off somewhere.
    for (auto end = text.find('\n'); end != text.npos; end = text.find('\n')) {
        Mount mount;
        if (parseMount(text.substr(0, end), mount)) mounts.push_back(mount);
        text.remove_prefix(end + 1);
    }
}

std::string unescapeMountText(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == '\\' && text.size() - i > 3 && text[i + 1] >= '0' &&
                              text[i + 1] <= '3' && isOctal(text[i + 2]) && isOctal(text[i + 3]);
        if (!isEscape) {
            plain += text[i];
            continue;
        }
        const int code = (text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0');
        plain += static_cast<char>(static_cast<unsigned char>(code));
        i += 3;
    }
    return plain;
}

}  // namespace vantor

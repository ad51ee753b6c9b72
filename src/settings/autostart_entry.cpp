#include "settings/autostart_entry.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::string_view entryGroup = "[Desktop Entry]";

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

bool isPlain(char c) {
    constexpr std::string_view others = "/._+-";
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           others.find(c) != std::string_view::npos;
}

/// An argument of the key Exec: within quotes some characters have a backslash before them, and in
/// the file each backslash is two. A percent sign would begin a field.
std::string quoted(std::string_view argument) {
    if (std::ranges::all_of(argument, isPlain)) return std::string(argument);
    std::string text = "\"";
    for (const char c : argument) {
        if (c == '\\') {
            text += R"(\\\\)";
        } else if (c == '"' || c == '`' || c == '$') {
            text += R"(\\)";
            text += c;
        } else if (c == '%') {
            text += "%%";
        } else {
            text += c;
        }
    }
    return text + '"';
}

}  // namespace

bool AutostartEntry::opens(std::string_view text) {
    bool isInEntry = false;
    bool hasCommand = false;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const std::string_view line = withoutBlanks(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with('[')) isInEntry = line == entryGroup;
        const auto equals = line.find('=');
        if (!isInEntry || line.starts_with('#') || equals == std::string_view::npos) continue;
        const std::string_view key = withoutBlanks(line.substr(0, equals));
        const std::string_view value = withoutBlanks(line.substr(equals + 1));
        if (key == "Hidden" && value == "true") return false;
        if (key == "X-GNOME-Autostart-enabled" && value == "false") return false;
        if (key == "Exec") hasCommand = !value.empty();
    }
    return hasCommand;
}

std::optional<std::string> AutostartEntry::textFor(std::string_view program) {
    const auto isControl = [](char c) {
        return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
    };
    if (program.empty() || std::ranges::any_of(program, isControl)) return std::nullopt;
    return std::string(entryGroup) +
           "\nType=Application\nName=Vantor\nComment=Watch this machine from the tray\nExec=" +
           quoted(program) +
           " --background\nIcon=com.kestrone.Vantor\nTerminal=false\nStartupNotify=false\n";
}

}  // namespace vantor

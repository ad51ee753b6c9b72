#include "settings/ini_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <locale>
#include <sstream>
#include <utility>

#include "model/number_text.h"
#include "model/utf8.h"
#include "settings/ini_escapes.h"

namespace vantor {

namespace {

constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
constexpr std::string_view ourGroup = "general";

std::string_view trimmedIniLine(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n\v\f";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isOurGroup(std::string_view name) {
    return std::equal(name.begin(), name.end(), ourGroup.begin(), ourGroup.end(),
                      [](char c, char ours) { return c == ours || c == ours - 'a' + 'A'; });
}

std::optional<std::int64_t> wholeIniNumber(std::string_view text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

/// For a text that is nothing but a number, whatever the user's locale.
std::optional<double> floatingIniNumber(const std::string& text) {
    if (text.empty() || text.front() == '+' ||
        text.find_first_not_of("0123456789+-.eE") != std::string::npos)
        return std::nullopt;
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    double number = 0;
    if (!(stream >> number) || stream.peek() != std::istringstream::traits_type::eof())
        return std::nullopt;
    return number;
}

DefaultsStore::Value typedIniValue(const std::string& written) {
    auto text = unescapedIniText(written);
    if (!text) return std::string();  // a list
    // The sign of values of other kinds; a text that begins with it has it twice.
    if (text->starts_with('@')) return text->starts_with("@@") ? text->substr(1) : std::string();
    if (*text == "true") return true;
    if (*text == "false") return false;
    if (const auto whole = wholeIniNumber(*text)) return *whole;
    if (const auto number = floatingIniNumber(*text)) return *number;
    return std::move(*text);
}

struct ToIniText {
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const {
        if (std::isnan(value)) return "nan";
        if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
        std::array<char, 32> room{};
        return std::string(shortestText(room, value));
    }
    std::string operator()(const std::string& value) const {
        return escapedIniText(value.starts_with('@') ? '@' + value : value);
    }
};

}  // namespace

std::optional<IniText> IniText::parse(std::string_view bytes) {
    if (bytes.size() > largest || bytes.find('\0') != std::string_view::npos || !isUTF8(bytes))
        return std::nullopt;
    // All of them: one that stayed would become part of the first key.
    while (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    IniText ini;
    bool isOurs = true;
    while (!bytes.empty()) {
        const auto end = bytes.find('\n');
        const auto length = end == std::string_view::npos ? bytes.size() : end + 1;
        auto line = parseLine(bytes.substr(0, length), isOurs);
        if (!line) return std::nullopt;
        ini.lines_.push_back(std::move(*line));
        bytes.remove_prefix(length);
    }
    return ini;
}

std::optional<IniText::Line> IniText::parseLine(std::string_view text, bool& isOurs) {
    Line line{std::string(text), isOurs, false, std::nullopt, {}};
    const std::string_view content = trimmedIniLine(text);
    line.isBlank = content.empty();
    if (content.empty() || content.starts_with(';') || content.starts_with('#')) return line;
    if (content.starts_with('[') && content.ends_with(']')) {
        isOurs = isOurGroup(trimmedIniLine(content.substr(1, content.size() - 2)));
        line.isOurs = isOurs;
        return line;
    }
    const auto sign = content.find('=');
    if (sign == 0 || sign == std::string_view::npos) return std::nullopt;
    line.key = unescapedIniKey(trimmedIniLine(content.substr(0, sign)));
    line.value = trimmedIniLine(content.substr(sign + 1));
    return line;
}

DefaultsValues IniText::values() const {
    DefaultsValues values;
    for (const Line& line : lines_) {
        if (line.isOurs && line.key) values.insert_or_assign(*line.key, typedIniValue(line.value));
    }
    return values;
}

void IniText::setValue(std::string_view key, const DefaultsStore::Value& value) {
    Line line{{}, true, false, std::string(key), std::visit(ToIniText{}, value)};
    line.text = escapedIniKey(key) + '=' + line.value + '\n';
    const auto old = std::find_if(lines_.rbegin(), lines_.rend(),
                                  [&](const Line& each) { return each.isOurs && each.key == key; });
    if (old != lines_.rend()) {
        *old = std::move(line);
        return;
    }
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(),
                                   [](const Line& each) { return each.isOurs && !each.isBlank; });
    if (last != lines_.rend()) {
        if (!last->text.ends_with('\n')) last->text += '\n';
        lines_.insert(last.base(), std::move(line));
        return;
    }
    std::vector<Line> group{{"[General]\n", true, false, std::nullopt, {}}, std::move(line)};
    if (!lines_.empty()) group.push_back({"\n", true, true, std::nullopt, {}});
    lines_.insert(lines_.begin(), std::move_iterator(group.begin()),
                  std::move_iterator(group.end()));
}

std::string IniText::text() const {
    std::string text;
    for (const Line& line : lines_)
        text += line.text;
    return text;
}

}  // namespace vantor

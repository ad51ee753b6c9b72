#include "model/timestamp_text.h"

#include <charconv>
#include <chrono>
#include <cstddef>
#include <system_error>

namespace vantor {

namespace {

bool readNumber(std::string_view digits, int& number) {
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc{} && end == digits.data() + digits.size() && digits.front() != '-';
}

void appendPadded(std::string& text, int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    if (digits.size() < width) text.append(width - digits.size(), '0');
    text += digits;
}

}  // namespace

std::string encodeTimestamp(Timestamp timestamp) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(timestamp);
    const auto day = std::chrono::floor<std::chrono::days>(seconds);
    const std::chrono::year_month_day date{day};
    const std::chrono::hh_mm_ss time{seconds - day};
    std::string text;
    appendPadded(text, static_cast<int>(date.year()), 4);
    text += '-';
    appendPadded(text, static_cast<int>(static_cast<unsigned>(date.month())), 2);
    text += '-';
    appendPadded(text, static_cast<int>(static_cast<unsigned>(date.day())), 2);
    text += 'T';
    appendPadded(text, static_cast<int>(time.hours().count()), 2);
    text += ':';
    appendPadded(text, static_cast<int>(time.minutes().count()), 2);
    text += ':';
    appendPadded(text, static_cast<int>(time.seconds().count()), 2);
    text += 'Z';
    return text;
}

std::optional<Timestamp> decodeTimestamp(std::string_view text) {
    constexpr std::string_view shape = "0000-00-00T00:00:00Z";
    if (text.size() != shape.size()) return std::nullopt;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        if (shape[i] != '0' && shape[i] != text[i]) return std::nullopt;
    }
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    if (!readNumber(text.substr(0, 4), year) || !readNumber(text.substr(5, 2), month) ||
        !readNumber(text.substr(8, 2), day) || !readNumber(text.substr(11, 2), hour) ||
        !readNumber(text.substr(14, 2), minute) || !readNumber(text.substr(17, 2), second)) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date{std::chrono::year{year},
                                           std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    if (!date.ok() || hour > 23 || minute > 59 || second > 59) return std::nullopt;
    const auto instant = std::chrono::sys_days{date} + std::chrono::hours{hour} +
                         std::chrono::minutes{minute} + std::chrono::seconds{second};
    // The earliest instant, written in whole seconds, lies just before what the clock can hold.
    const auto seconds = std::chrono::time_point_cast<std::chrono::seconds>(instant);
    const auto earliest = std::chrono::ceil<std::chrono::seconds>(Timestamp::min());
    const auto latest = std::chrono::floor<std::chrono::seconds>(Timestamp::max());
    if (seconds < earliest) return Timestamp::min();
    if (seconds > latest) return Timestamp::max();
    return Timestamp{seconds};
}

}  // namespace vantor

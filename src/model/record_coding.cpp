#include "model/record_coding.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <cmath>
#include <concepts>
#include <limits>
#include <type_traits>

#include "model/record_fields.h"

namespace vantor {

namespace {

using nlohmann::json;

template <class T>
struct IsOptional : std::false_type {};
template <class T>
struct IsOptional<std::optional<T>> : std::true_type {};
template <class T>
struct IsVector : std::false_type {};
template <class T>
struct IsVector<std::vector<T>> : std::true_type {};

template <class T>
bool encodeValue(const T& value, json& out) {
    if constexpr (std::is_floating_point_v<T>) {
        if (!std::isfinite(value)) return false;
        out = value;
    } else if constexpr (std::is_same_v<T, SharedText>) {
        out = value.string();
    } else if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, std::string>) {
        out = value;
    } else if constexpr (std::is_same_v<T, Timestamp>) {
        out = encodeTimestamp(value);
    } else if constexpr (IsVector<T>::value) {
        out = json::array();
        for (const auto& element : value) {
            if (!encodeValue(element, out.emplace_back())) return false;
        }
    } else {
        out = json::object();
        bool finite = true;
        forEachField(value, [&](const char* name, const auto& field) {
            if (!finite) return;
            if constexpr (IsOptional<std::remove_cvref_t<decltype(field)>>::value) {
                if (field) finite = encodeValue(*field, out[name]);
            } else {
                finite = encodeValue(field, out[name]);
            }
        });
        return finite;
    }
    return true;
}

template <class T>
bool decodeInteger(const json& in, T& value) {
    if (in.is_number_unsigned()) {
        const auto number = in.get<std::uint64_t>();
        if (!std::in_range<T>(number)) return false;
        value = static_cast<T>(number);
        return true;
    }
    if (in.is_number_integer()) {
        const auto number = in.get<std::int64_t>();
        if (!std::in_range<T>(number)) return false;
        value = static_cast<T>(number);
        return true;
    }
    return false;
}

template <class T>
bool decodeValue(const json& in, T& value) {
    if constexpr (std::is_same_v<T, bool>) {
        if (!in.is_boolean()) return false;
        value = in.get<bool>();
    } else if constexpr (std::is_floating_point_v<T>) {
        if (!in.is_number()) return false;
        value = in.get<T>();
    } else if constexpr (std::is_integral_v<T>) {
        return decodeInteger(in, value);
    } else if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, SharedText>) {
        if (!in.is_string()) return false;
        value = T{in.get<std::string>()};
    } else if constexpr (std::is_same_v<T, Timestamp>) {
        const auto timestamp =
            in.is_string() ? decodeTimestamp(in.get_ref<const std::string&>()) : std::nullopt;
        if (!timestamp) return false;
        value = *timestamp;
    } else if constexpr (IsVector<T>::value) {
        if (!in.is_array()) return false;
        value.clear();
        value.reserve(in.size());
        for (const auto& element : in) {
            if (!decodeValue(element, value.emplace_back())) return false;
        }
    } else {
        if (!in.is_object()) return false;
        bool whole = true;
        forEachField(value, [&](const char* name, auto& field) {
            if (!whole) return;
            const auto found = in.find(name);
            if constexpr (IsOptional<std::remove_cvref_t<decltype(field)>>::value) {
                field.reset();
                if (found != in.end()) whole = decodeValue(*found, field.emplace());
            } else {
                whole = found != in.end() && decodeValue(*found, field);
            }
        });
        return whole;
    }
    return true;
}

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

template <class Record>
std::optional<json> encode(const Record& record) {
    json out;
    if (!encodeValue(record, out)) return std::nullopt;
    return out;
}

template <class Record>
std::optional<Record> decode(const json& value) {
    Record record;
    if (!decodeValue(value, record)) return std::nullopt;
    return record;
}

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

template std::optional<json> encode(const CPUStats&);
template std::optional<CPUStats> decode(const json&);
template std::optional<json> encode(const MemoryStats&);
template std::optional<MemoryStats> decode(const json&);
template std::optional<json> encode(const NetworkInterfaceStats&);
template std::optional<NetworkInterfaceStats> decode(const json&);
template std::optional<json> encode(const NetworkStats&);
template std::optional<NetworkStats> decode(const json&);
template std::optional<json> encode(const GPUStats&);
template std::optional<GPUStats> decode(const json&);
template std::optional<json> encode(const VolumeStats&);
template std::optional<VolumeStats> decode(const json&);
template std::optional<json> encode(const ProcessStats&);
template std::optional<ProcessStats> decode(const json&);
template std::optional<json> encode(const ProcessSample&);
template std::optional<ProcessSample> decode(const json&);
template std::optional<json> encode(const SystemInfoStats&);
template std::optional<SystemInfoStats> decode(const json&);
template std::optional<json> encode(const PowerStats&);
template std::optional<PowerStats> decode(const json&);
template std::optional<json> encode(const SystemSnapshot&);
template std::optional<SystemSnapshot> decode(const json&);

}  // namespace vantor

#pragma once

#include <nlohmann/json.hpp>

#include <cmath>
#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include "model/record_fields.h"
#include "model/timestamp_text.h"

/// Records as JSON values, each field under its own name. A field that always has a value is always
/// written; an optional one only when present, and a missing key reads as absent.
///
/// `Record` is any record that has a table of fields.
/// Pure functions, any thread.
namespace vantor {

namespace record_coding {

using nlohmann::json;

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
    } else if constexpr (isList<T>) {
        out = json::array();
        for (const auto& element : value) {
            if (!encodeValue(element, out.emplace_back())) return false;
        }
    } else {
        out = json::object();
        return forEachField(value, [&](const char* name, const auto& field) {
            if constexpr (isOptional<std::remove_cvref_t<decltype(field)>>) {
                return !field || encodeValue(*field, out[name]);
            } else {
                return encodeValue(field, out[name]);
            }
        });
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
    } else if constexpr (isList<T>) {
        if (!in.is_array()) return false;
        value.clear();
        value.reserve(in.size());
        for (const auto& element : in) {
            if (!decodeValue(element, value.emplace_back())) return false;
        }
    } else {
        if (!in.is_object()) return false;
        return forEachField(value, [&](const char* name, auto& field) {
            const auto found = in.find(name);
            if constexpr (isOptional<std::remove_cvref_t<decltype(field)>>) {
                field.reset();
                return found == in.end() || decodeValue(*found, field.emplace());
            } else {
                return found != in.end() && decodeValue(*found, field);
            }
        });
    }
    return true;
}

}  // namespace record_coding

/// Absent when a floating value anywhere in the record is infinite or not a number: JSON cannot
/// represent those, and any other value would be wrong.
template <class Record>
std::optional<nlohmann::json> encode(const Record& record) {
    nlohmann::json out;
    if (!record_coding::encodeValue(record, out)) return std::nullopt;
    return out;
}

/// Absent when a field that always has a value is missing, or any field has another type or does
/// not fit its own. Unknown keys are ignored.
template <class Record>
std::optional<Record> decode(const nlohmann::json& value) {
    Record record;
    if (!record_coding::decodeValue(value, record)) return std::nullopt;
    return record;
}

}  // namespace vantor

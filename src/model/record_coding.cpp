#include "model/record_coding.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <concepts>
#include <limits>
#include <type_traits>

#include "model/record_fields.h"
#include "model/timestamp_text.h"

namespace vantor {

namespace {

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

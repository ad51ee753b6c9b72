#include "platform/property_value.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantor {

PropertyValue::PropertyValue(bool value) : value_(value) {}

PropertyValue::PropertyValue(std::int64_t value) : value_(value) {}

PropertyValue::PropertyValue(int value) : value_(std::int64_t{value}) {}

PropertyValue::PropertyValue(double value) : value_(value) {}

PropertyValue::PropertyValue(std::string value) : value_(std::move(value)) {}

PropertyValue::PropertyValue(const char* value) : value_(std::string(value)) {}

PropertyValue::PropertyValue(Data value) : value_(std::move(value)) {}

PropertyValue::PropertyValue(Array value) : value_(std::move(value)) {}

PropertyValue::PropertyValue(PropertyDictionary value) : value_(std::move(value)) {}

std::optional<std::int64_t> PropertyValue::integer() const {
    if (const auto* whole = std::get_if<std::int64_t>(&value_)) return *whole;
    const auto* number = std::get_if<double>(&value_);
    // The bounds are the powers of two themselves: a double has none nearer to the largest integer.
    constexpr double bound = 9223372036854775808.0;
    if (!number || std::trunc(*number) != *number || *number < -bound || *number >= bound) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(*number);
}

std::optional<double> PropertyValue::number() const {
    if (const auto* whole = std::get_if<std::int64_t>(&value_)) return static_cast<double>(*whole);
    const auto* number = std::get_if<double>(&value_);
    return number ? std::optional(*number) : std::nullopt;
}

const PropertyValue::Data* PropertyValue::data() const {
    return std::get_if<Data>(&value_);
}

const std::string* PropertyValue::text() const {
    return std::get_if<std::string>(&value_);
}

const PropertyDictionary* PropertyValue::dictionary() const {
    return std::get_if<PropertyDictionary>(&value_);
}

std::optional<bool> PropertyValue::boolean() const {
    const auto* truth = std::get_if<bool>(&value_);
    return truth ? std::optional(*truth) : std::nullopt;
}

const PropertyValue* find(const PropertyDictionary& dictionary, std::string_view key) {
    const auto entry = std::find_if(dictionary.begin(), dictionary.end(),
                                    [&](const PropertyEntry& e) { return e.key == key; });
    return entry == dictionary.end() ? nullptr : &entry->value;
}

std::optional<std::int64_t> findInteger(const PropertyDictionary& dictionary,
                                        std::string_view key) {
    const PropertyValue* const value = find(dictionary, key);
    return value ? value->integer() : std::nullopt;
}

std::optional<bool> findBoolean(const PropertyDictionary& dictionary, std::string_view key) {
    const PropertyValue* const value = find(dictionary, key);
    return value ? value->boolean() : std::nullopt;
}

const std::string* findText(const PropertyDictionary& dictionary, std::string_view key) {
    const PropertyValue* const value = find(dictionary, key);
    return value ? value->text() : nullptr;
}

}  // namespace vantor

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vantor {

class PropertyValue;
struct PropertyEntry;

/// Entries in the order of the platform. Keys that are no text are not there.
using PropertyDictionary = std::vector<PropertyEntry>;

/// A value of a platform's dictionaries: what people call a property list.
class PropertyValue {
  public:
    using Array = std::vector<PropertyValue>;
    using Data = std::vector<std::byte>;

    // Defined where an entry is whole: before, its vector cannot be destroyed.
    PropertyValue(bool value);          // NOLINT(google-explicit-constructor)
    PropertyValue(std::int64_t value);  // NOLINT(google-explicit-constructor)
    PropertyValue(int value);           // NOLINT(google-explicit-constructor)
    PropertyValue(double value);        // NOLINT(google-explicit-constructor)
    PropertyValue(std::string value);   // NOLINT(google-explicit-constructor)
    PropertyValue(const char* value);   // NOLINT(google-explicit-constructor)
    explicit PropertyValue(Data value);
    explicit PropertyValue(Array value);
    explicit PropertyValue(PropertyDictionary value);

    /// A whole number, also one that is held as a floating value without a fraction.
    std::optional<std::int64_t> integer() const;
    /// Any number, whole or not; a boolean is none.
    std::optional<double> number() const;
    std::optional<bool> boolean() const;
    /// Null when this is no text, no data, no dictionary.
    const std::string* text() const;
    const Data* data() const;
    const PropertyDictionary* dictionary() const;

  private:
    std::variant<bool, std::int64_t, double, std::string, Data, Array, PropertyDictionary> value_;
};

struct PropertyEntry {
    std::string key;
    PropertyValue value;
};

/// The value under `key`; null when there is none.
const PropertyValue* find(const PropertyDictionary& dictionary, std::string_view key);

/// The value under `key` where it is of that kind; absent or null otherwise.
std::optional<std::int64_t> findInteger(const PropertyDictionary& dictionary, std::string_view key);
std::optional<bool> findBoolean(const PropertyDictionary& dictionary, std::string_view key);
const std::string* findText(const PropertyDictionary& dictionary, std::string_view key);

}  // namespace vantor

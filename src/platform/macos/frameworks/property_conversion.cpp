#include "platform/macos/frameworks/property_conversion.h"

#include <array>
#include <utility>
#include <vector>

namespace vantor {

namespace {

// No driver nests nearly as deep; what does is made to exhaust the stack.
constexpr int deepest = 16;

// A unit of UTF-16 makes three bytes of UTF-8 at most.
constexpr CFIndex shortLength = 128;
constexpr std::size_t shortSize = 3 * shortLength;

std::optional<CFTypeID> typeID(CFTypeID (*function)(), bool isReadable) {
    return function && isReadable ? std::optional(function()) : std::nullopt;
}

}  // namespace

PropertyConversion::PropertyConversion(const CoreFoundationTable& table) : table_(table) {
    if (!table.getTypeID) return;
    text_ = typeID(table.stringGetTypeID, table.stringGetLength && table.stringGetBytes);
    number_ = typeID(table.numberGetTypeID, table.numberIsFloatType && table.numberGetValue);
    boolean_ = typeID(table.booleanGetTypeID, table.booleanGetValue);
    data_ = typeID(table.dataGetTypeID, table.dataGetLength && table.dataGetBytePtr);
    array_ = typeID(table.arrayGetTypeID, table.arrayGetCount && table.arrayGetValueAtIndex);
    dictionary_ = typeID(table.dictionaryGetTypeID,
                         table.dictionaryGetCount && table.dictionaryGetKeysAndValues);
}

std::optional<PropertyValue> PropertyConversion::value(CFTypeRef object) const {
    return convert(object, 0);
}

std::optional<PropertyValue> PropertyConversion::convert(CFTypeRef object, int depth) const {
    if (!object || !table_.getTypeID) return std::nullopt;
    const CFTypeID type = table_.getTypeID(object);
    if (type == number_) return convertNumber(object);
    if (type == boolean_) return PropertyValue(table_.booleanGetValue(object) != 0);
    if (type == data_) return convertData(object);
    if (type == text_) {
        auto converted = text(object);
        if (!converted) return std::nullopt;
        return PropertyValue(std::move(*converted));
    }
    if (depth == deepest) return std::nullopt;
    if (type == dictionary_) return convertDictionary(object, depth);
    if (type == array_) return convertArray(object, depth);
    return std::nullopt;
}

std::optional<PropertyValue> PropertyConversion::convertNumber(CFTypeRef number) const {
    constexpr double bound = 9223372036854775808.0;  // 2 to the 63rd
    double floating = 0;
    if (table_.numberIsFloatType(number) != 0) {
        if (table_.numberGetValue(number, cfNumberDoubleType, &floating) == 0) return std::nullopt;
        return PropertyValue(floating);
    }
    if (const auto whole = integer(number)) return PropertyValue(*whole);
    // Past the signed 64 bits. False here too, where the nearest floating value is not the number
    // itself; so it is the value that tells whether there is one.
    table_.numberGetValue(number, cfNumberDoubleType, &floating);
    if (floating < bound && floating >= -bound) return std::nullopt;
    return PropertyValue(floating);
}

PropertyValue PropertyConversion::convertData(CFTypeRef data) const {
    PropertyValue::Data bytes;
    const CFIndex length = table_.dataGetLength(data);
    const auto* const first = reinterpret_cast<const std::byte*>(table_.dataGetBytePtr(data));
    if (first && length > 0) bytes.assign(first, first + length);
    return PropertyValue(std::move(bytes));
}

PropertyValue PropertyConversion::convertArray(CFTypeRef array, int depth) const {
    PropertyValue::Array values;
    const CFIndex count = table_.arrayGetCount(array);
    for (CFIndex i = 0; i < count; ++i) {
        if (auto entry = convert(table_.arrayGetValueAtIndex(array, i), depth + 1))
            values.push_back(std::move(*entry));
    }
    return PropertyValue(std::move(values));
}

PropertyValue PropertyConversion::convertDictionary(CFTypeRef dictionary, int depth) const {
    PropertyDictionary entries;
    const CFIndex count = table_.dictionaryGetCount(dictionary);
    if (count <= 0) return PropertyValue(std::move(entries));
    const auto size = static_cast<std::size_t>(count);
    std::vector<const void*> keys(size);
    std::vector<const void*> values(size);
    table_.dictionaryGetKeysAndValues(dictionary, keys.data(), values.data());
    entries.reserve(size);
    for (std::size_t i = 0; i < size; ++i) {
        auto key = text(keys[i]);
        if (!key) continue;
        if (auto entry = convert(values[i], depth + 1))
            entries.push_back({std::move(*key), std::move(*entry)});
    }
    return PropertyValue(std::move(entries));
}

std::optional<std::string> PropertyConversion::text(CFTypeRef object) const {
    std::string text;
    return copyText(object, text) ? std::optional(std::move(text)) : std::nullopt;
}

bool PropertyConversion::copyText(CFTypeRef object, std::string& text) const {
    text.clear();
    if (!is(object, text_)) return false;
    const CFIndex length = table_.stringGetLength(object);
    // Without a byte to stand for what cannot be converted, conversion ends there.
    const auto convertInto = [&](std::uint8_t* buffer, std::size_t size, CFIndex& used) {
        return table_.stringGetBytes(object, {0, length}, cfStringEncodingUTF8, 0, 0, buffer,
                                     static_cast<CFIndex>(size), &used) == length;
    };
    CFIndex used = 0;
    if (length <= shortLength) {
        std::array<std::uint8_t, shortSize> buffer;
        if (!convertInto(buffer.data(), buffer.size(), used)) return false;
        if (used < 0 || used > static_cast<CFIndex>(buffer.size())) return false;
        text.assign(buffer.begin(), buffer.begin() + used);
        return true;
    }
    if (!convertInto(nullptr, 0, used) || used <= 0) return false;
    text.resize(static_cast<std::size_t>(used));
    const CFIndex expected = used;
    const bool isWhole =
        convertInto(reinterpret_cast<std::uint8_t*>(text.data()), text.size(), used);
    if (isWhole && used == expected) return true;
    text.clear();
    return false;
}

std::optional<std::int64_t> PropertyConversion::integer(CFTypeRef object) const {
    std::int64_t whole = 0;
    if (!is(object, number_) || table_.numberIsFloatType(object) != 0) return std::nullopt;
    if (table_.numberGetValue(object, cfNumberSInt64Type, &whole) == 0) return std::nullopt;
    return whole;
}

std::optional<bool> PropertyConversion::boolean(CFTypeRef object) const {
    if (!is(object, boolean_)) return std::nullopt;
    return table_.booleanGetValue(object) != 0;
}

std::optional<std::size_t> PropertyConversion::arrayCount(CFTypeRef object) const {
    if (!is(object, array_)) return std::nullopt;
    const CFIndex count = table_.arrayGetCount(object);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

CFTypeRef PropertyConversion::arrayEntry(CFTypeRef array, std::size_t index) const {
    return table_.arrayGetValueAtIndex(array, static_cast<CFIndex>(index));
}

CFTypeRef PropertyConversion::dictionaryEntry(CFTypeRef dictionary, CFTypeRef key) const {
    if (!key || !table_.dictionaryGetValue || !table_.getTypeID) return nullptr;
    return is(dictionary, dictionary_) ? table_.dictionaryGetValue(dictionary, key) : nullptr;
}

RetainedReference PropertyConversion::makeText(std::string_view text) const {
    if (!canMakeTexts()) return {};
    return own(
        table_.stringCreateWithBytes(nullptr, reinterpret_cast<const std::uint8_t*>(text.data()),
                                     static_cast<CFIndex>(text.size()), cfStringEncodingUTF8, 0));
}

RetainedReference PropertyConversion::share(CFTypeRef object) const {
    if (!object || !table_.retain || !table_.release) return {};
    return own(table_.retain(object));
}

}  // namespace vantor

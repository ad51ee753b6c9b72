#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/macos/frameworks/core_foundation_table.h"
#include "platform/macos/frameworks/retained_reference.h"
#include "platform/property_value.h"

namespace vantor {

/// Reads and makes the framework's objects. What an object is is always asked of the object itself;
/// null and what is of another kind than asked for is absent, and so is all that would need a
/// function which is missing. Objects are borrowed for the call. Any thread.
class PropertyConversion {
  public:
    /// The table has to outlive this.
    explicit PropertyConversion(const CoreFoundationTable& table);

    /// The value of a text, number, boolean, data, array or dictionary. Entries under keys that are
    /// no text are left out, as is what is of any other kind or nested more than 16 levels deep.
    ///
    /// A number past the signed 64 bits is the nearest floating value.
    std::optional<PropertyValue> value(CFTypeRef object) const;

    /// UTF-8, zero bytes included.
    std::optional<std::string> text(CFTypeRef object) const;
    /// Into storage that is reused; false, and `text` empty, when the object is no text.
    bool copyText(CFTypeRef object, std::string& text) const;
    /// A whole number within 64 bits.
    std::optional<std::int64_t> integer(CFTypeRef object) const;
    std::optional<bool> boolean(CFTypeRef object) const;

    /// How many entries an array has.
    std::optional<std::size_t> arrayCount(CFTypeRef object) const;
    /// Borrowed from the array, which must have the entry; may be null.
    CFTypeRef arrayEntry(CFTypeRef array, std::size_t index) const;
    /// Borrowed from the dictionary; null when it has none, or is no dictionary.
    CFTypeRef dictionaryEntry(CFTypeRef dictionary, CFTypeRef key) const;

    /// Null when it could not be made.
    RetainedReference makeText(std::string_view text) const;
    /// Takes over an object that the caller was given to release.
    RetainedReference own(CFTypeRef object) const { return {object, table_.release}; }
    /// Another reference to an object that is borrowed.
    RetainedReference share(CFTypeRef object) const;

    /// Whether objects' types can be queried and objects released. Without that nothing should be
    /// requested.
    bool isUsable() const { return table_.getTypeID && table_.release; }
    bool canMakeTexts() const { return isUsable() && table_.stringCreateWithBytes; }

  private:
    bool is(CFTypeRef object, std::optional<CFTypeID> type) const {
        return object && type && table_.getTypeID(object) == *type;
    }
    std::optional<PropertyValue> convert(CFTypeRef object, int depth) const;
    std::optional<PropertyValue> convertNumber(CFTypeRef number) const;
    PropertyValue convertData(CFTypeRef data) const;
    PropertyValue convertArray(CFTypeRef array, int depth) const;
    PropertyValue convertDictionary(CFTypeRef dictionary, int depth) const;

    const CoreFoundationTable& table_;
    // Absent where a function is missing that such objects are read with.
    std::optional<CFTypeID> text_, number_, boolean_, data_, array_, dictionary_;
};

}  // namespace vantor

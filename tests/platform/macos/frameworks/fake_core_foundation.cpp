#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "platform/macos/fake_darwin.h"

namespace vantor {

namespace {

using Kind = FakeObject::Kind;
using Ref = FakeObject::Ref;

constexpr char arrayCallBacks = 0;
constexpr char keyCallBacks = 0;
constexpr char valueCallBacks = 0;

CFTypeID typeIDOf(Kind kind) {
    return static_cast<CFTypeID>(kind) + 10;
}

template <Kind kind>
CFTypeID typeIDFunction() {
    return typeIDOf(kind);
}

/// The bytes of one unit, or of two where they belong together; empty for half of such a pair.
std::string utf8At(const std::u16string& units, std::size_t place, std::size_t& length) {
    std::uint32_t code = units[place];
    length = 1;
    if (code >= 0xD800 && code < 0xE000) {
        const bool isFirst = code < 0xDC00 && place + 1 < units.size();
        const std::uint32_t second = isFirst ? units[place + 1] : 0;
        if (second < 0xDC00 || second >= 0xE000) return "";
        code = 0x10000 + ((code - 0xD800) << 10) + (second - 0xDC00);
        length = 2;
    }
    const auto byte = [](std::uint32_t value) { return static_cast<char>(value); };
    if (code < 0x80) return {byte(code)};
    if (code < 0x800) return {byte(0xC0 | code >> 6), byte(0x80 | (code & 0x3F))};
    if (code < 0x10000) {
        return {byte(0xE0 | code >> 12), byte(0x80 | (code >> 6 & 0x3F)),
                byte(0x80 | (code & 0x3F))};
    }
    return {byte(0xF0 | code >> 18), byte(0x80 | (code >> 12 & 0x3F)),
            byte(0x80 | (code >> 6 & 0x3F)), byte(0x80 | (code & 0x3F))};
}

CFIndex getBytes(CFTypeRef string, CFRange range, std::uint32_t encoding, std::uint8_t lossByte,
                 CFBoolean isExternal, std::uint8_t* buffer, CFIndex bufferSize, CFIndex* used) {
    const FakeCall call;
    const Ref text = call->objects.check(string, Kind::text, "CFStringGetBytes");
    if (!text || call->fails()) return 0;
    if (encoding != 0x08000100 || lossByte != 0 || isExternal != 0 || range.location != 0 ||
        range.length != static_cast<CFIndex>(text->units.size())) {
        call->objects.complain("CFStringGetBytes of something else than all, as UTF-8");
        return 0;
    }
    std::string bytes;
    std::size_t place = 0;
    while (place < text->units.size()) {
        std::size_t length = 0;
        const std::string next = utf8At(text->units, place, length);
        const bool hasRoom =
            !buffer || bytes.size() + next.size() <= static_cast<std::size_t>(bufferSize);
        if (next.empty() || !hasRoom) break;
        bytes += next;
        place += length;
    }
    if (buffer) std::copy(bytes.begin(), bytes.end(), buffer);
    if (used) *used = static_cast<CFIndex>(bytes.size());
    return static_cast<CFIndex>(place);
}

CFBoolean getInteger(Ref number, std::int64_t& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&number->number)) {
        value = *whole;
        return 1;
    }
    value = std::numeric_limits<std::int64_t>::max();
    return 0;
}

CFBoolean getDouble(Ref number, double& value) {
    if (const auto* floating = std::get_if<double>(&number->number)) {
        value = *floating;
        return 1;
    }
    if (const auto* whole = std::get_if<std::int64_t>(&number->number)) {
        value = static_cast<double>(*whole);
        return 1;
    }
    // False where something is lost, and yet a value.
    const auto large = std::get<std::uint64_t>(number->number);
    value = static_cast<double>(large);
    return large % 4096 == 0;
}

CFBoolean getNumber(CFTypeRef object, CFIndex type, void* value) {
    const FakeCall call;
    const Ref number = call->objects.check(object, Kind::number, "CFNumberGetValue");
    if (!number || call->fails()) return 0;
    if (type == 4) return getInteger(number, *static_cast<std::int64_t*>(value));
    if (type == 13) return getDouble(number, *static_cast<double*>(value));
    call->objects.complain("CFNumberGetValue with an odd type");
    return 0;
}

/// Without regard to case or exactly; the language is left out.
CFIndex compareStrings(CFTypeRef a, CFTypeRef b, CFRange range, unsigned long options,
                       CFTypeRef locale) {
    const FakeCall call;
    constexpr auto name = "CFStringCompareWithOptionsAndLocale";
    const Ref x = call->objects.check(a, Kind::text, name);
    const Ref y = call->objects.check(b, Kind::text, name);
    if (!x || !y || (locale && !call->objects.check(locale, Kind::text, name))) return 0;
    if (range.location != 0 || range.length != static_cast<CFIndex>(x->units.size()))
        call->objects.complain("a comparison of a part");
    std::u16string first = x->units, second = y->units;
    if (options == 369) {
        for (std::u16string* const units : {&first, &second}) {
            for (char16_t& unit : *units)
                unit = unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
        }
    } else if (options != 112) {
        call->objects.complain("a comparison with odd options");
    }
    return first < second ? -1 : first > second ? 1 : 0;
}

void fillBasics(CoreFoundationTable& table) {
    table.retain = [](CFTypeRef object) {
        const FakeCall call;
        call->objects.retain(object);
        return object;
    };
    table.release = [](CFTypeRef object) { FakeCall()->objects.release(object); };
    table.getTypeID = [](CFTypeRef object) -> CFTypeID {
        const FakeCall call;
        const Ref known = call->objects.check(object, "CFGetTypeID");
        return known ? typeIDOf(known->kind) : 0;
    };
    table.booleanGetTypeID = typeIDFunction<Kind::boolean>;
    table.booleanGetValue = [](CFTypeRef object) -> CFBoolean {
        const FakeCall call;
        const Ref boolean = call->objects.check(object, Kind::boolean, "CFBooleanGetValue");
        return boolean && std::get<std::int64_t>(boolean->number) != 0;
    };
    table.dataGetTypeID = typeIDFunction<Kind::data>;
    table.dataGetLength = [](CFTypeRef object) {
        const FakeCall call;
        const Ref data = call->objects.check(object, Kind::data, "CFDataGetLength");
        return data ? static_cast<CFIndex>(data->bytes.size()) : 0;
    };
    table.dataGetBytePtr = [](CFTypeRef object) -> const std::uint8_t* {
        const FakeCall call;
        const Ref data = call->objects.check(object, Kind::data, "CFDataGetBytePtr");
        if (!data || call->fails()) return nullptr;
        return reinterpret_cast<const std::uint8_t*>(data->bytes.data());
    };
}

void fillTextsAndNumbers(CoreFoundationTable& table) {
    table.stringGetTypeID = typeIDFunction<Kind::text>;
    table.stringCreateWithBytes = [](CFTypeRef allocator, const std::uint8_t* bytes, CFIndex size,
                                     std::uint32_t encoding, CFBoolean isExternal) -> CFTypeRef {
        const FakeCall call;
        if (allocator || encoding != 0x08000100 || isExternal != 0)
            call->objects.complain("CFStringCreateWithBytes of something else than UTF-8");
        if (call->fails()) return nullptr;
        FakeObject& text = call->objects.create(Kind::text);
        text.units.assign(bytes, bytes + size);
        return &text;
    };
    table.stringGetLength = [](CFTypeRef object) {
        const FakeCall call;
        const Ref text = call->objects.check(object, Kind::text, "CFStringGetLength");
        return text ? static_cast<CFIndex>(text->units.size()) : 0;
    };
    table.stringGetBytes = getBytes;
    table.stringCompare = compareStrings;
    table.localeCopyCurrent = []() -> CFTypeRef {
        const FakeCall call;
        return call->fails() ? nullptr : &call->objects.create(Kind::text);
    };
    table.numberGetTypeID = typeIDFunction<Kind::number>;
    table.numberCreate = [](CFTypeRef allocator, CFIndex type, const void* value) -> CFTypeRef {
        const FakeCall call;
        if (allocator || type != 3) call->objects.complain("CFNumberCreate of an odd type");
        if (call->fails()) return nullptr;
        std::int32_t whole = 0;
        std::memcpy(&whole, value, sizeof whole);
        FakeObject& number = call->objects.create(Kind::number);
        number.number = std::int64_t{whole};
        return &number;
    };
    table.numberIsFloatType = [](CFTypeRef object) -> CFBoolean {
        const FakeCall call;
        const Ref number = call->objects.check(object, Kind::number, "CFNumberIsFloatType");
        return number && std::holds_alternative<double>(number->number);
    };
    table.numberGetValue = getNumber;
}

CFTypeRef createArray(CFTypeRef allocator, const void** values, CFIndex count,
                      const void* callBacks) {
    const FakeCall call;
    if (allocator || callBacks != &arrayCallBacks || count < 0)
        call->objects.complain("CFArrayCreate without retaining");
    if (call->fails()) return nullptr;
    FakeObject& array = call->objects.create(Kind::array);
    for (CFIndex i = 0; i < count; ++i) {
        const Ref entry = call->objects.check(values[i], "CFArrayCreate");
        call->objects.hold(&array, entry);
        array.entries.emplace_back(entry, nullptr);
    }
    return &array;
}

CFTypeRef createDictionary(CFTypeRef allocator, const void** keys, const void** values,
                           CFIndex count, const void* forKeys, const void* forValues) {
    const FakeCall call;
    if (allocator || forKeys != &keyCallBacks || forValues != &valueCallBacks || count < 0)
        call->objects.complain("CFDictionaryCreate without retaining");
    if (call->fails()) return nullptr;
    FakeObject& dictionary = call->objects.create(Kind::dictionary);
    for (CFIndex i = 0; i < count; ++i) {
        const Ref key = call->objects.check(keys[i], "CFDictionaryCreate");
        const Ref value = call->objects.check(values[i], "CFDictionaryCreate");
        call->objects.hold(&dictionary, key);
        call->objects.hold(&dictionary, value);
        dictionary.entries.emplace_back(key, value);
    }
    return &dictionary;
}

CFTypeRef getDictionaryValue(CFTypeRef object, const void* wanted) {
    const FakeCall call;
    const Ref dictionary = call->objects.check(object, Kind::dictionary, "CFDictionaryGetValue");
    const Ref key = call->objects.check(wanted, Kind::text, "CFDictionaryGetValue");
    if (!dictionary || !key || call->fails()) return nullptr;
    const auto found = std::find_if(
        dictionary->entries.begin(), dictionary->entries.end(),
        [&](const auto& e) { return e.first->kind == Kind::text && e.first->units == key->units; });
    return found == dictionary->entries.end() ? nullptr : found->second;
}

void fillCollections(CoreFoundationTable& table) {
    table.arrayGetTypeID = typeIDFunction<Kind::array>;
    table.arrayCreate = createArray;
    table.arrayGetCount = [](CFTypeRef object) {
        const FakeCall call;
        const Ref array = call->objects.check(object, Kind::array, "CFArrayGetCount");
        return array ? static_cast<CFIndex>(array->entries.size()) : 0;
    };
    table.arrayGetValueAtIndex = [](CFTypeRef object, CFIndex index) -> CFTypeRef {
        const FakeCall call;
        const Ref array = call->objects.check(object, Kind::array, "CFArrayGetValueAtIndex");
        if (!array || call->fails()) return nullptr;
        return array->entries.at(static_cast<std::size_t>(index)).first;
    };
    table.dictionaryGetTypeID = typeIDFunction<Kind::dictionary>;
    table.dictionaryCreate = createDictionary;
    table.dictionaryGetCount = [](CFTypeRef object) {
        const FakeCall call;
        const Ref dictionary =
            call->objects.check(object, Kind::dictionary, "CFDictionaryGetCount");
        return dictionary ? static_cast<CFIndex>(dictionary->entries.size()) : 0;
    };
    table.dictionaryGetKeysAndValues = [](CFTypeRef object, const void** keys,
                                          const void** values) {
        const FakeCall call;
        const Ref dictionary =
            call->objects.check(object, Kind::dictionary, "CFDictionaryGetKeysAndValues");
        if (!dictionary) return;
        for (const auto& [key, value] : dictionary->entries) {
            *keys++ = key;
            *values++ = value;
        }
    };
    table.dictionaryGetValue = getDictionaryValue;
}

}  // namespace

CoreFoundationTable fakeCoreFoundation(const FakeDarwin& darwin) {
    CoreFoundationTable table;
    fillBasics(table);
    fillTextsAndNumbers(table);
    fillCollections(table);
    addFakeVolumes(table, darwin);
    table.arrayCallBacks = &arrayCallBacks;
    table.dictionaryKeyCallBacks = &keyCallBacks;
    table.dictionaryValueCallBacks = &valueCallBacks;
    return table;
}

}  // namespace vantor

#pragma once

#include <cstdint>

namespace vantor {

// The framework's types and numbers, declared here because its headers are only on a Mac.

using CFTypeRef = const void*;  ///< any object; null is none
using CFIndex = long;
using CFTypeID = unsigned long;
using CFBoolean = unsigned char;  ///< what the framework calls Boolean: 0 is false

struct CFRange {
    CFIndex location = 0;
    CFIndex length = 0;
};

inline constexpr std::uint32_t cfStringEncodingUTF8 = 0x08000100;
inline constexpr CFIndex cfNumberSInt32Type = 3;
inline constexpr CFIndex cfNumberSInt64Type = 4;
inline constexpr CFIndex cfNumberDoubleType = 13;
inline constexpr CFIndex cfURLPOSIXPathStyle = 0;
inline constexpr CFIndex cfURLEnumeratorSuccess = 1;
inline constexpr CFIndex cfURLEnumeratorEnd = 2;
inline constexpr CFIndex cfURLEnumeratorError = 3;
inline constexpr unsigned long cfURLEnumeratorSkipInvisibles = 1UL << 1;

// kCFCompare…
inline constexpr unsigned long cfCompareCaseInsensitive = 1;
inline constexpr unsigned long cfCompareNonliteral = 16;
inline constexpr unsigned long cfCompareLocalized = 32;
inline constexpr unsigned long cfCompareNumerically = 64;
inline constexpr unsigned long cfCompareWidthInsensitive = 256;

/// The functions and constants of Core Foundation that are used, each null where it was not found.
/// Members are named after the functions, without their prefix. What "create" and "copy" give is
/// the caller's to release; what "get" returns is owned by the object that it came from.
/// Allocators are null, which is the default one.
struct CoreFoundationTable {
    CFTypeRef (*retain)(CFTypeRef) = nullptr;
    void (*release)(CFTypeRef) = nullptr;
    CFTypeID (*getTypeID)(CFTypeRef) = nullptr;

    CFTypeID (*stringGetTypeID)() = nullptr;
    CFTypeRef (*stringCreateWithBytes)(CFTypeRef allocator, const std::uint8_t* bytes, CFIndex size,
                                       std::uint32_t encoding,
                                       CFBoolean isExternalRepresentation) = nullptr;
    /// In units of UTF-16.
    CFIndex (*stringGetLength)(CFTypeRef) = nullptr;
    /// How many units were converted; `used` bytes were written, or would be where `buffer` is
    /// null.
    CFIndex (*stringGetBytes)(CFTypeRef, CFRange, std::uint32_t encoding, std::uint8_t lossByte,
                              CFBoolean isExternalRepresentation, std::uint8_t* buffer,
                              CFIndex bufferSize, CFIndex* used) = nullptr;

    /// -1, 0 or 1. The locale may be null: then nothing is localized.
    CFIndex (*stringCompare)(CFTypeRef, CFTypeRef other, CFRange, unsigned long options,
                             CFTypeRef locale) = nullptr;
    CFTypeRef (*localeCopyCurrent)() = nullptr;

    CFTypeID (*numberGetTypeID)() = nullptr;
    CFTypeRef (*numberCreate)(CFTypeRef allocator, CFIndex type, const void* value) = nullptr;
    CFBoolean (*numberIsFloatType)(CFTypeRef) = nullptr;
    /// False where the value does not fit; it is then the nearest one that does.
    CFBoolean (*numberGetValue)(CFTypeRef, CFIndex type, void* value) = nullptr;

    CFTypeID (*booleanGetTypeID)() = nullptr;
    CFBoolean (*booleanGetValue)(CFTypeRef) = nullptr;

    CFTypeID (*dataGetTypeID)() = nullptr;
    CFIndex (*dataGetLength)(CFTypeRef) = nullptr;
    const std::uint8_t* (*dataGetBytePtr)(CFTypeRef) = nullptr;

    CFTypeID (*arrayGetTypeID)() = nullptr;
    CFTypeRef (*arrayCreate)(CFTypeRef allocator, const void** values, CFIndex count,
                             const void* callBacks) = nullptr;
    CFIndex (*arrayGetCount)(CFTypeRef) = nullptr;
    CFTypeRef (*arrayGetValueAtIndex)(CFTypeRef, CFIndex index) = nullptr;

    CFTypeID (*dictionaryGetTypeID)() = nullptr;
    CFTypeRef (*dictionaryCreate)(CFTypeRef allocator, const void** keys, const void** values,
                                  CFIndex count, const void* keyCallBacks,
                                  const void* valueCallBacks) = nullptr;
    CFIndex (*dictionaryGetCount)(CFTypeRef) = nullptr;
    void (*dictionaryGetKeysAndValues)(CFTypeRef, const void** keys, const void** values) = nullptr;
    CFTypeRef (*dictionaryGetValue)(CFTypeRef, const void* key) = nullptr;

    CFTypeRef (*urlCopyFileSystemPath)(CFTypeRef url, CFIndex style) = nullptr;
    CFTypeRef (*urlCopyLastPathComponent)(CFTypeRef url) = nullptr;
    /// A dictionary without the keys that have no value. The error may be null.
    CFTypeRef (*urlCopyResourcePropertiesForKeys)(CFTypeRef url, CFTypeRef keys,
                                                  CFTypeRef* error) = nullptr;
    CFTypeRef (*urlEnumeratorCreateForMountedVolumes)(CFTypeRef allocator, unsigned long options,
                                                      CFTypeRef keys) = nullptr;
    /// The URL is the enumerator's, the error the caller's.
    CFIndex (*urlEnumeratorGetNextURL)(CFTypeRef enumerator, CFTypeRef* url,
                                       CFTypeRef* error) = nullptr;

    // kCFType…CallBacks: their addresses.
    const void* arrayCallBacks = nullptr;
    const void* dictionaryKeyCallBacks = nullptr;
    const void* dictionaryValueCallBacks = nullptr;

    // kCFURLVolume…Key: texts that are never released.
    CFTypeRef volumeIsLocalKey = nullptr;
    CFTypeRef volumeIsBrowsableKey = nullptr;
    CFTypeRef volumeNameKey = nullptr;
    CFTypeRef volumeTotalCapacityKey = nullptr;
    CFTypeRef volumeAvailableCapacityKey = nullptr;
    CFTypeRef volumeIsInternalKey = nullptr;
    CFTypeRef volumeIsRemovableKey = nullptr;
    CFTypeRef volumeIsReadOnlyKey = nullptr;
};

}  // namespace vantor

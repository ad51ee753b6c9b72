#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/property_value.h"

namespace vantor {

/// The name in lower case with nothing but its letters and digits, so that "Radeon(TM) Pro 5500"
/// and "radeon tm pro-5500" are one.
///
/// Only A to Z are lower-cased: the standard library knows no other case without a locale, and both
/// sources of a device's name write other letters alike. Characters past ASCII are kept unless they
/// are known to be blanks, punctuation or symbols.
std::string normalizedGPUName(std::string_view name);

/// Whether two normalized names are equal or one contains the other. An empty one is similar to
/// all.
bool areSimilarNames(std::string_view one, std::string_view other);

/// A service's name from its property "model" (null = there is none): a text, or data that holds
/// UTF-8 up to its first zero byte. Absent when that is empty or cannot be read.
std::optional<std::string> deviceName(const PropertyValue* model);

}  // namespace vantor

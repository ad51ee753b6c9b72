#pragma once

#include <string_view>

namespace vantor {

/// Whether `bytes` is well-formed UTF-8: no overlong forms, no surrogates, nothing past U+10FFFF.
bool isUTF8(std::string_view bytes);

}  // namespace vantor

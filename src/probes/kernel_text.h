#pragma once

#include <algorithm>
#include <string>

#include "model/utf8.h"

namespace vantor {

/// Kernels let the names of hosts and interfaces be any bytes; a record's texts are UTF-8.
inline void makeUTF8(std::string& text) {
    if (isUTF8(text)) return;
    const auto isForeign = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
    std::replace_if(text.begin(), text.end(), isForeign, '?');
}

}  // namespace vantor

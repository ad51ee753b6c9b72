#include "probes/utf8.h"

#include <cstddef>

namespace vantor {

bool isUTF8(std::string_view bytes) {
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    for (std::size_t i = 0; i < bytes.size();) {
        const unsigned char lead = at(i);
        if (lead < 0x80) {
            ++i;
            continue;
        }
        const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
        if (lead < 0xC2 || lead > 0xF4 || i + length > bytes.size()) return false;
        // The second byte's range shuts out overlong forms, surrogates and too large values.
        unsigned char lowest = 0x80, highest = 0xBF;
        if (lead == 0xE0) lowest = 0xA0;
        if (lead == 0xED) highest = 0x9F;
        if (lead == 0xF0) lowest = 0x90;
        if (lead == 0xF4) highest = 0x8F;
        if (at(i + 1) < lowest || at(i + 1) > highest) return false;
        for (std::size_t k = 2; k < length; ++k) {
            if ((at(i + k) & 0xC0) != 0x80) return false;
        }
        i += length;
    }
    return true;
}

}  // namespace vantor

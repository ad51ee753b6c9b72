#include "platform/darwin/smc_record.h"

#include <cstring>

namespace vantor {

std::optional<std::uint32_t> fourCC(std::string_view text) {
    if (text.size() != 4) return std::nullopt;
    std::uint32_t code = 0;
    for (const char c : text)
        code = code * 256 + static_cast<unsigned char>(c);
    return code;
}

std::uint32_t SMCRecord::word(std::size_t offset) const {
    std::uint32_t word = 0;
    std::memcpy(&word, bytes_.data() + offset, sizeof word);
    return word;
}

void SMCRecord::setWord(std::size_t offset, std::uint32_t word) {
    std::memcpy(bytes_.data() + offset, &word, sizeof word);
}

}  // namespace vantor

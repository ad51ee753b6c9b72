#include "platform/posix/libc_name_order.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

#include "platform/posix/key_ranks.h"

namespace vantor {

namespace {

bool isDecimalDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Each number with how many digits it has before it, so that the order of the texts is that of the
/// values.
std::string withCountedDigits(const std::string& name) {
    std::string counted;
    for (auto at = name.begin(); at != name.end();) {
        if (!isDecimalDigit(*at)) {
            counted += *at++;
            continue;
        }
        const auto end = std::find_if_not(at, name.end(), isDecimalDigit);
        // The last zero of a number of zeros is its value.
        while (*at == '0' && at + 1 != end)
            ++at;
        const std::string count = std::to_string(end - at);
        counted += std::string(count.size() < 5 ? 5 - count.size() : 0, '0') + count;
        counted.append(at, end);
        at = end;
    }
    return counted;
}

}  // namespace

LibcNameOrder::LibcNameOrder(const std::string& locale)
    : locale_(::newlocale(LC_COLLATE_MASK | LC_CTYPE_MASK, locale.c_str(), nullptr)) {}

std::string LibcNameOrder::keyOf(const std::string& name) const {
    std::string text = withCountedDigits(name);
    if (!locale_) return text;
    std::string key(4 * text.size() + 16, '\0');
    const auto write = [&] {
        return ::strxfrm_l(key.data(), text.c_str(), key.size(), locale_.get());
    };
    const std::size_t needed = write();
    const bool isCut = needed >= key.size();
    key.resize(needed + 1);
    if (isCut) write();
    key.resize(needed);
    return key;
}

std::vector<std::uint32_t> LibcNameOrder::ranks(std::span<const std::string> names) {
    std::vector<std::string> keys;
    keys.reserve(names.size());
    for (const std::string& name : names)
        keys.push_back(keyOf(name));
    return ranksOfKeys(std::move(keys));
}

}  // namespace vantor

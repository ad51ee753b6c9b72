#include "platform/posix/icu_name_order.h"

#include <unicode/ucol.h>
#include <unicode/ustring.h>

#include <cstddef>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "platform/posix/key_ranks.h"
#include "platform/posix/plain_name_key.h"

namespace vantor {

namespace {

constexpr UChar32 replacementCharacter = 0xFFFD;

}  // namespace

void ICUNameOrder::Close::operator()(UCollator* collator) const {
    ucol_close(collator);
}

bool ICUNameOrder::open() {
    if (collator_) return true;
    UErrorCode error = U_ZERO_ERROR;
    collator_.reset(ucol_open(language_.c_str(), &error));
    if (U_SUCCESS(error))
        ucol_setAttribute(collator_.get(), UCOL_NUMERIC_COLLATION, UCOL_ON, &error);
    if (U_SUCCESS(error))
        ucol_setAttribute(collator_.get(), UCOL_NORMALIZATION_MODE, UCOL_ON, &error);
    if (U_FAILURE(error)) collator_.reset();
    return collator_ != nullptr;
}

std::string ICUNameOrder::keyOf(const std::string& name) {
    // No text has more units of UTF-16 than bytes of UTF-8.
    units_.resize(name.size());
    std::int32_t length = 0;
    UErrorCode error = U_ZERO_ERROR;
    u_strFromUTF8WithSub(units_.data(), static_cast<std::int32_t>(units_.size()), &length,
                         name.data(), static_cast<std::int32_t>(name.size()), replacementCharacter,
                         nullptr, &error);
    if (U_FAILURE(error)) return name;
    const auto write = [&](std::string& key) {
        return ucol_getSortKey(collator_.get(), units_.data(), length,
                               reinterpret_cast<std::uint8_t*>(key.data()),
                               static_cast<std::int32_t>(key.size()));
    };
    std::string key(4 * name.size() + 16, '\0');
    const auto needed = static_cast<std::size_t>(write(key));
    const bool isCut = needed > key.size();
    key.resize(needed);
    if (isCut) write(key);
    return key;
}

std::optional<std::vector<std::string>> ICUNameOrder::plainKeys(
    std::span<const std::string> names) const {
    if (!hasPlainOrder(language_)) return std::nullopt;
    std::vector<std::string> keys;
    keys.reserve(names.size());
    for (const std::string& name : names) {
        std::optional<std::string> key = plainKeyOf(name);
        if (!key) return std::nullopt;
        keys.push_back(std::move(*key));
    }
    return keys;
}

std::vector<std::uint32_t> ICUNameOrder::ranks(std::span<const std::string> names) {
    if (names.size() < 2) return std::vector<std::uint32_t>(names.size(), 0);
    if (auto keys = plainKeys(names)) return ranksOfKeys(std::move(*keys));
    const bool isOpen = open();
    std::vector<std::string> keys;
    keys.reserve(names.size());
    for (const std::string& name : names)
        keys.push_back(isOpen ? keyOf(name) : name);
    return ranksOfKeys(std::move(keys));
}

std::string languageOfNames() {
    for (const char* const variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
        const char* const value = std::getenv(variable);
        if (!value || *value == '\0') continue;
        const std::string_view locale(value);
        const std::string_view language = locale.substr(0, locale.find_first_of(".@"));
        return language == "C" || language == "POSIX" ? std::string() : std::string(language);
    }
    return {};
}

}  // namespace vantor

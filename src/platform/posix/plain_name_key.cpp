#include "platform/posix/plain_name_key.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vantor {

namespace {

constexpr std::string_view punctuation = " _-,;:!?.()[]{}@*/&#%+";
constexpr std::string_view digits = "0123456789";

// Each greater than all of the one before.
constexpr char firstPunctuation = 0x02;
constexpr char firstNumber = 0x20;
constexpr char firstLetter = 0x61;
constexpr std::size_t mostDigits = firstLetter - firstNumber - 1;

// Behind the characters come the cases of the letters, which decide between equal ones.
constexpr char endOfCharacters = 0x01;
constexpr char lowerCase = 0x01;
constexpr char upperCase = 0x02;

// A number is as great as it has digits, and then as its digits are.
bool appendNumber(std::string& key, std::string_view number) {
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    if (number.size() > mostDigits) return false;
    key += static_cast<char>(firstNumber + static_cast<char>(number.size()));
    key += number;
    return true;
}

}  // namespace

bool hasPlainOrder(std::string_view language) {
    constexpr std::array<std::string_view, 13> plain{"",   "ar", "de", "en", "es", "fr", "it",
                                                     "ja", "nl", "pl", "pt", "ru", "zh"};
    return std::ranges::find(plain, language.substr(0, language.find('_'))) != plain.end();
}

std::optional<std::string> plainKeyOf(std::string_view name) {
    std::string key;
    std::string cases;
    while (!name.empty()) {
        const char character = name.front();
        const std::size_t length = std::min(name.find_first_not_of(digits), name.size());
        if (length > 0) {
            if (!appendNumber(key, name.substr(0, length))) return std::nullopt;
            name.remove_prefix(length);
            continue;
        }
        if (const auto place = punctuation.find(character); place != std::string_view::npos) {
            key += static_cast<char>(firstPunctuation + static_cast<char>(place));
        } else if (character >= 'a' && character <= 'z') {
            key += character;
            cases += lowerCase;
        } else if (character >= 'A' && character <= 'Z') {
            key += static_cast<char>(character - 'A' + 'a');
            cases += upperCase;
        } else {
            return std::nullopt;
        }
        name.remove_prefix(1);
    }
    return key + endOfCharacters + cases;
}

}  // namespace vantor

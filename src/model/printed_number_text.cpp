#include "model/printed_number_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

namespace vantor {

namespace {

constexpr int fewestExponentDigits = 2;

/// "-12345" and 3: -1.2345 times ten to the third. The last digit is no zero, unless it is the
/// first.
struct Decimal {
    std::string sign;
    std::string digits;
    int exponent = 0;
};

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// What printf takes for the point is the locale's, and any text that has no digits.
std::string withPoint(std::string_view printed) {
    std::string text;
    bool hasPoint = false;
    for (const char character : printed) {
        if (isDigit(character) || (text.empty() && character == '-')) {
            text += character;
        } else if (!hasPoint) {
            hasPoint = true;
            text += '.';
        }
    }
    return text;
}

std::array<char, 48> printed(double value, int fraction) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%.*e", fraction, value);
    return text;
}

/// Fifteen digits name any number apart from those next to zero, which need fewer; seventeen
/// always do.
std::array<char, 48> shortestPrinted(double value) {
    constexpr int most = std::numeric_limits<double>::max_digits10 - 1;
    const bool isFull = std::abs(value) >= std::numeric_limits<double>::min() || value == 0;
    for (int fraction = isFull ? std::numeric_limits<double>::digits10 - 1 : 0; fraction < most;
         ++fraction) {
        const auto text = printed(value, fraction);
        if (std::strtod(text.data(), nullptr) == value) return text;
    }
    return printed(value, most);
}

Decimal decimalOf(double value) {
    const auto text = shortestPrinted(value);
    const std::string_view whole(text.data());
    const std::size_t mark = whole.rfind('e');
    Decimal decimal;
    if (std::signbit(value)) decimal.sign = "-";
    std::copy_if(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(mark),
                 std::back_inserter(decimal.digits), isDigit);
    const std::size_t last = decimal.digits.find_last_not_of('0');
    decimal.digits.resize(last == std::string::npos ? 1 : last + 1);
    decimal.exponent = std::atoi(text.data() + mark + 1);
    return decimal;
}

std::string scientific(const Decimal& decimal) {
    std::string text = decimal.sign + decimal.digits[0];
    if (decimal.digits.size() > 1) text.append(".").append(decimal.digits, 1);
    const std::string size = std::to_string(std::abs(decimal.exponent));
    text.append(decimal.exponent < 0 ? "e-" : "e+");
    if (size.size() < fewestExponentDigits) text += '0';
    return text + size;
}

/// How many characters it takes without an exponent, and without the sign.
std::size_t fixedSize(const Decimal& decimal) {
    const std::size_t count = decimal.digits.size();
    if (decimal.exponent < 0) return count + 1 + static_cast<std::size_t>(-decimal.exponent);
    const auto whole = static_cast<std::size_t>(decimal.exponent) + 1;
    return whole >= count ? whole : count + 1;
}

std::string fixed(const Decimal& decimal, double value) {
    const auto& digits = decimal.digits;
    if (decimal.exponent < 0) {
        const auto zeros = static_cast<std::size_t>(-decimal.exponent) - 1;
        return decimal.sign + "0." + std::string(zeros, '0') + digits;
    }
    const auto whole = static_cast<std::size_t>(decimal.exponent) + 1;
    if (whole < digits.size())
        return decimal.sign + digits.substr(0, whole) + '.' + digits.substr(whole);
    // A whole number is written to its last digit, also where fewer would tell it from others.
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%.0f", value);
    return text.data();
}

std::string_view put(std::span<char> buffer, std::string_view text) {
    if (text.size() > buffer.size()) return {};
    std::copy(text.begin(), text.end(), buffer.begin());
    return {buffer.data(), text.size()};
}

}  // namespace

std::string_view printedShortestText(std::span<char> buffer, double value) {
    const Decimal decimal = decimalOf(value);
    std::string text = scientific(decimal);
    if (decimal.sign.size() + fixedSize(decimal) <= text.size()) text = fixed(decimal, value);
    return put(buffer, text);
}

std::string_view printedFixedText(std::span<char> buffer, double value, int precision) {
    std::array<char, std::numeric_limits<double>::max_exponent10 + 64> text{};
    const int size = std::snprintf(text.data(), text.size(), "%.*f", precision, value);
    if (size < 0 || static_cast<std::size_t>(size) >= text.size()) return {};
    return put(buffer, std::isfinite(value) ? withPoint(text.data()) : text.data());
}

}  // namespace vantor

#include "model/number_text.h"

#include <charconv>
#include <system_error>

namespace vantor {

namespace {

std::string_view textIn(std::span<char> buffer, const std::to_chars_result& result) {
    if (result.ec != std::errc{}) return {};
    return {buffer.data(), result.ptr};
}

}  // namespace

std::string_view shortestText(std::span<char> buffer, double value) {
    return textIn(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), value));
}

std::string_view fixedText(std::span<char> buffer, double value, int precision) {
    return textIn(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                        std::chars_format::fixed, precision));
}

}  // namespace vantor

#include "model/number_text.h"

#include <charconv>
#include <system_error>

namespace vantor {

namespace {

std::string_view textIn(std::span<char> room, const std::to_chars_result& result) {
    if (result.ec != std::errc{}) return {};
    return {room.data(), result.ptr};
}

}  // namespace

std::string_view shortestText(std::span<char> room, double value) {
    return textIn(room, std::to_chars(room.data(), room.data() + room.size(), value));
}

std::string_view fixedText(std::span<char> room, double value, int precision) {
    return textIn(room, std::to_chars(room.data(), room.data() + room.size(), value,
                                      std::chars_format::fixed, precision));
}

}  // namespace vantor

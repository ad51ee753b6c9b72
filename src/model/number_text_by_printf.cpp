#include "model/number_text.h"
#include "model/printed_number_text.h"

namespace vantor {

std::string_view shortestText(std::span<char> room, double value) {
    return printedShortestText(room, value);
}

std::string_view fixedText(std::span<char> room, double value, int precision) {
    return printedFixedText(room, value, precision);
}

}  // namespace vantor

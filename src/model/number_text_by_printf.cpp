#include "model/number_text.h"
#include "model/printed_number_text.h"

namespace vantor {

std::string_view shortestText(std::span<char> buffer, double value) {
    return printedShortestText(buffer, value);
}

std::string_view fixedText(std::span<char> buffer, double value, int precision) {
    return printedFixedText(buffer, value, precision);
}

}  // namespace vantor

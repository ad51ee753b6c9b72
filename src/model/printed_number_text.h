#pragma once

#include <span>
#include <string_view>

namespace vantor {

// What number_text.h promises, by way of printf: for C++ libraries that cannot write floating
// numbers, or not on the oldest system that the program is for.
std::string_view printedShortestText(std::span<char> buffer, double value);
std::string_view printedFixedText(std::span<char> buffer, double value, int precision);

}  // namespace vantor

#include "platform/linux/processes/process_arguments.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::size_t kernelNameLimit = 15;

bool isControlCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

}  // namespace

std::optional<std::string_view> firstArgument(std::string_view arguments) {
    const auto end = arguments.find('\0');
    if (end == std::string_view::npos || end == 0) return std::nullopt;
    const std::string_view first = arguments.substr(0, end);
    if (std::any_of(first.begin(), first.end(), isControlCharacter)) return std::nullopt;
    return first;
}

bool mayBeCut(std::string_view kernelName) {
    return kernelName.size() >= kernelNameLimit;
}

std::optional<std::string_view> wholeName(std::string_view argument, std::string_view kernelName) {
    const std::string_view name = argument.substr(argument.rfind('/') + 1);
    if (kernelName.empty() || !name.starts_with(kernelName)) return std::nullopt;
    const std::string_view rest = name.substr(kernelName.size());
    if (rest.empty()) return name;
    // Behind a blank, daemons write what they are doing.
    if (!mayBeCut(kernelName) || rest.find(' ') != std::string_view::npos) {
        return std::nullopt;
    }
    return name;
}

}  // namespace vantor

#include <algorithm>
#include <array>
#include <string>

#include "model/utf8.h"
#include "probes/standard_order.h"

#include "require.h"

namespace {

int signOf(std::string_view a, std::string_view b) {
    const int order = vantor::compareStandard(a, b);
    return (order > 0) - (order < 0);
}

}  // namespace

/// Sorting by an order that contradicts itself is undefined. Three names, one a line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    std::string_view text = fuzz::textOf(data, size);
    std::array<std::string, 3> names;
    for (std::string& name : names) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        name = repairedUTF8(line);
    }
    const auto& [a, b, c] = names;
    require(signOf(a, b) == -signOf(b, a));
    require((signOf(a, b) == 0) == (a == b));
    if (signOf(a, b) <= 0 && signOf(b, c) <= 0) require(signOf(a, c) <= 0);
    if (signOf(a, b) >= 0 && signOf(b, c) >= 0) require(signOf(a, c) >= 0);
    return 0;
}

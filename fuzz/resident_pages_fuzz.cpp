#include <string>

#include "platform/linux/processes/process_stat.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto pages = parseResidentPages(text);
    if (!pages) return 0;
    // Nothing is made up: these digits are in the text, after another word.
    const std::string digits = std::to_string(*pages);
    const auto place = text.find(digits);
    require(place != text.npos && text.rfind(digits) > 0);
    require(parseResidentPages("0 " + digits + "\n") == pages);
    // A text that was cut has no line end.
    require(!parseResidentPages(text.substr(0, text.find('\n'))));
    return 0;
}

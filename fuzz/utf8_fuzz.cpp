#include "model/utf8.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const std::string repaired = repairedUTF8(text);
    require(isUTF8(repaired));
    require(isUTF8(text) == (repaired == text));
    const std::string distinct = distinctUTF8(text);
    require(isUTF8(distinct) && (isUTF8(text) == (distinct == text)));
    require(repaired.size() <= 3 * text.size() && repaired.empty() == text.empty());
    return 0;
}

#include <algorithm>
#include <functional>

#include "platform/linux/processor/cpu_list.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto numbers = parseCPUList(text);
    if (!numbers) return 0;
    require(numbers->size() <= 65536);
    require(std::adjacent_find(numbers->begin(), numbers->end(), std::greater_equal<>{}) ==
            numbers->end());
    return 0;
}

#include <cmath>

#include "platform/linux/system/linux_process_info.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto seconds = parseUptime(text);
    if (seconds) require(std::isfinite(*seconds) && *seconds >= 0);
    return 0;
}

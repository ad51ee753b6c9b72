#include "platform/linux/power/low_power_mode.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    if (isQuietTheLowestOf(text)) require(text.find("quiet") != text.npos);
    return 0;
}

#include <string>

#include "platform/linux/memory/zram_devices.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto used = parseZramUsedBytes(text);
    if (used) require(text.find(std::to_string(*used)) != text.npos);
    return 0;
}

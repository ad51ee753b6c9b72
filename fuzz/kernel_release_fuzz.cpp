#include "platform/linux/system/kernel_facts.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto version = parseKernelRelease(text);
    if (!version) return 0;
    require(version->major >= 0 && version->minor >= 0 && version->patch >= 0);
    return 0;
}

#include "platform/linux/graphics/amdgpu_ids.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    for (const auto revision : {std::optional<std::uint8_t>(0xC1), std::optional<std::uint8_t>()}) {
        const auto name = findAMDGPUName(text, 0x73BF, revision);
        require(!name || (!name->empty() && text.find(*name) != text.npos));
    }
    return 0;
}

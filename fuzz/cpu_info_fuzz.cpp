#include "platform/linux/processor/cpu_identity.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto name = findInCPUInfo(text, "model name");
    if (name) {
        require(!name->empty() && text.find(*name) != text.npos);
        require(name->find('\n') == name->npos);
    }
    const auto hertz = frequencyInName(text);
    if (hertz) require(*hertz >= 1 && *hertz <= 1'000'000'000'000'000);
    return 0;
}

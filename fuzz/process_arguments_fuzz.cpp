#include "platform/linux/processes/process_arguments.h"

#include "require.h"

/// The first byte is the length of the kernel's name, which follows; the rest is the text of
/// cmdline.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    if (text.empty()) return 0;
    const auto length = static_cast<std::size_t>(static_cast<unsigned char>(text.front()) % 20);
    const std::string_view kernelName = text.substr(1, length);
    const std::string_view arguments = text.substr(1 + kernelName.size());
    const auto first = firstArgument(arguments);
    if (!first) return 0;
    require(!first->empty() && first->data() == arguments.data());
    require(first->size() < arguments.size() && arguments[first->size()] == '\0');
    for (const char letter : *first)
        require(static_cast<unsigned char>(letter) >= 0x20 && letter != 0x7F);
    const auto name = wholeName(*first, kernelName);
    if (!name) return 0;
    require(first->ends_with(*name) && name->find('/') == std::string_view::npos);
    require(name->starts_with(kernelName));
    require(mayBeCut(kernelName) || *name == kernelName);
    return 0;
}

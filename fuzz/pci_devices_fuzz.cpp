#include <cstdio>
#include <string>

#include "platform/linux/graphics/pci_address.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    if (const auto numbers = findPCIDevice(text, {0, 1, 0, 0})) {
        char line[16];
        std::snprintf(line, sizeof line, "%04x%04x", numbers->vendor, numbers->device);
        std::string lower(text);
        for (char& letter : lower)
            if (letter >= 'A' && letter <= 'F') letter = static_cast<char>(letter - 'A' + 'a');
        require(lower.find(line) != lower.npos);
    }
    if (const auto address = parsePCIAddress(text)) {
        require(address->device < 32 && address->function < 8);
        require(parsePCIAddress(address->text()) == address);
        require(address->number() < std::uint64_t{1} << 48);
    }
    return 0;
}

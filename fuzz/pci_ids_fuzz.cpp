#include <algorithm>

#include "platform/linux/graphics/graphics_names.h"
#include "platform/linux/graphics/pci_ids.h"

#include "require.h"

namespace vantor {
namespace {

void requireName(const GraphicsIdentity& identity, const ListedNames& listed) {
    const std::string name = graphicsName(identity, listed);
    fuzz::require(!name.empty() && std::none_of(name.begin(), name.end(), [](unsigned char letter) {
        return letter < 0x20 || letter == 0x7F;
    }));
}

}  // namespace
}  // namespace vantor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    constexpr std::uint16_t vendor = 0x10DE, device = 0x2484;
    PCIIDsSearch whole(vendor, device);
    whole.feed(text);
    // However it is cut.
    PCIIDsSearch cut(vendor, device);
    const std::size_t piece = size > 0 ? data[0] % 16 + std::size_t{1} : 1;
    for (std::size_t at = 0; at < size; at += piece)
        cut.feed(text.substr(at, piece));
    require(cut.vendorName() == whole.vendorName() && cut.deviceName() == whole.deviceName());
    require(whole.deviceName().empty() || !whole.vendorName().empty());
    require(whole.deviceName().size() <= PCIIDsSearch::maxLineLength);
    const std::string any(text.substr(0, 200));
    for (const std::uint16_t maker : {vendor, std::uint16_t{0x1234}}) {
        const GraphicsIdentity numbered{maker, device, std::nullopt, "", ""};
        requireName(numbered, {whole.vendorName(), whole.deviceName(), ""});
        requireName(numbered, {any, any, ""});
        requireName(numbered, {"", "", any});
        requireName(numbered, {"", "", "ATI " + any});
        requireName(numbered, {"", "", ""});
    }
    requireName({std::nullopt, std::nullopt, std::nullopt, any, any}, {"", "", ""});
    requireName({std::nullopt, std::nullopt, std::nullopt, any, ""}, {"", "", ""});
    return 0;
}

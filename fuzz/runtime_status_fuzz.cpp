#include "platform/linux/graphics/amdgpu_files.h"
#include "platform/linux/graphics/drm_listing.h"
#include "platform/linux/graphics/drm_sweep.h"
#include "platform/linux/graphics/runtime_status.h"

#include "require.h"

/// The short texts of graphics cards.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    if (saysAwake(text)) require(text == "active\n" || text == "unsupported\n");
    if (parseCount(text)) require(text.ends_with('\n') && text.front() >= '0');
    if (parseCardNumber(text)) require(text.starts_with("card") && size > 4);
    const std::string_view node = graphicsNode(text);
    require(node.empty() || (text.ends_with(node) && node.find('/') == node.npos));
    return 0;
}

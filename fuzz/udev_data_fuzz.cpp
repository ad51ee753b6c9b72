#include "platform/linux/storage/udev_data.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto label = labelInUdevData(text);
    if (!label) return 0;
    require(!label->empty() && label->size() < text.size());
    require(text.find("E:ID_FS_LABEL") != text.npos);
    return 0;
}

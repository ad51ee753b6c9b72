#include <algorithm>

#include "platform/linux/system/os_release.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto isShowable = [](const std::string& value) {
        return !value.empty() && std::none_of(value.begin(), value.end(), [](char letter) {
            return static_cast<unsigned char>(letter) < 0x20;
        });
    };
    require(isShowable(operatingSystemNameIn(text)));
    const auto value = findInOSRelease(text, "NAME");
    if (value) require(isShowable(*value) && value->size() + 5 <= text.size());
    return 0;
}

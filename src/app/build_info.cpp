#include "app/build_info.h"

namespace vantor {

std::optional<std::string> BuildInfo::text(std::string_view key) const {
    if (key == "CFBundleShortVersionString") return VANTOR_VERSION;
    if (key == "CFBundleVersion") return VANTOR_BUILD_NUMBER;
    return std::nullopt;
}

}  // namespace vantor

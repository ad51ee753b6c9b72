#include "platform/darwin/darwin_primary_interface.h"

#include <array>

namespace vantor {

namespace {

constexpr std::array<std::string_view, 2> primaryInterfaceKeys{"State:/Network/Global/IPv4",
                                                               "State:/Network/Global/IPv6"};

}  // namespace

std::optional<std::string_view> DarwinPrimaryInterface::name() {
    for (const std::string_view key : primaryInterfaceKeys) {
        const PropertyValue* const value = store_.copyValue(key);
        const PropertyDictionary* const dictionary = value ? value->dictionary() : nullptr;
        const std::string* const name =
            dictionary ? findText(*dictionary, "PrimaryInterface") : nullptr;
        if (name && !name->empty()) return *name;
    }
    return std::nullopt;
}

}  // namespace vantor

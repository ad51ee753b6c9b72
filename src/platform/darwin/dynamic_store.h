#pragma once

#include <string_view>

#include "platform/property_value.h"

namespace vantor {

/// A Mac's store of its current network state: SCDynamicStoreCopyValue on the default store. One
/// thread at a time.
class DynamicStore {
  public:
    virtual ~DynamicStore() = default;

    /// The value under `key`, until the next call; null when there is none. The keys
    /// "State:/Network/Global/IPv4" and "…/IPv6" hold dictionaries whose "PrimaryInterface" names
    /// the interface of the default route.
    virtual const PropertyValue* copyValue(std::string_view key) = 0;
};

}  // namespace vantor

#pragma once

#include "platform/macos/frameworks/core_foundation_table.h"

namespace vantor {

/// The function of System Configuration that is used; null where it was not found.
struct SystemConfigurationTable {
    /// A null store is a session for this call alone.
    CFTypeRef (*dynamicStoreCopyValue)(CFTypeRef store, CFTypeRef key) = nullptr;
};

}  // namespace vantor

#pragma once

#include <deque>
#include <memory>

#include "platform/macos/frameworks/core_foundation_table.h"
#include "platform/macos/frameworks/io_kit_table.h"
#include "platform/macos/frameworks/library_loader.h"
#include "platform/macos/frameworks/loaded_framework.h"
#include "platform/macos/frameworks/metal_table.h"
#include "platform/macos/frameworks/objective_c_table.h"
#include "platform/macos/frameworks/system_configuration_table.h"

namespace vantor {

/// What the system's frameworks offer this program. They are found at run time: one that is missing
/// costs its readings and nothing else. Immutable once loaded; any thread.
struct Frameworks {
    LibraryLoader loader{};
    CoreFoundationTable coreFoundation;
    SystemConfigurationTable systemConfiguration;
    IOKitTable ioKit;
    MetalTable metal;
    ObjectiveCTable objectiveC;

    MachPort mainPort = 0;  ///< to the registry; 0 is the default one
    MachPort task = 0;      ///< this program's own; 0 where it is unknown

    std::deque<LoadedFramework> libraries;  ///< what the functions are in
};

/// Never null, whatever is missing.
std::shared_ptr<const Frameworks> loadFrameworks(const LibraryLoader& loader);
std::shared_ptr<const Frameworks> loadFrameworks();

}  // namespace vantor

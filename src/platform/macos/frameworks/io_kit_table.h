#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/macos/frameworks/core_foundation_table.h"

namespace vantor {

using MachPort = std::uint32_t;  ///< 0 = none; services, iterators and connections are ports too
using KernelResult = int;        ///< 0 = success

/// The functions of the I/O Kit framework that are used, each null where it was not found. Members
/// are named after the functions, without their prefix.
struct IOKitTable {
    /// Owned; a look-up of services consumes it, also when it fails.
    CFTypeRef (*serviceMatching)(const char* className) = nullptr;
    MachPort (*serviceGetMatchingService)(MachPort mainPort, CFTypeRef matching) = nullptr;
    KernelResult (*serviceGetMatchingServices)(MachPort mainPort, CFTypeRef matching,
                                               MachPort* iterator) = nullptr;
    MachPort (*iteratorNext)(MachPort iterator) = nullptr;
    KernelResult (*objectRelease)(MachPort object) = nullptr;

    CFTypeRef (*registryEntryCreateCFProperty)(MachPort entry, CFTypeRef key, CFTypeRef allocator,
                                               std::uint32_t options) = nullptr;
    KernelResult (*registryEntryGetRegistryEntryID)(MachPort entry,
                                                    std::uint64_t* identifier) = nullptr;

    KernelResult (*serviceOpen)(MachPort service, MachPort task, std::uint32_t type,
                                MachPort* connection) = nullptr;
    KernelResult (*serviceClose)(MachPort connection) = nullptr;
    KernelResult (*connectCallStructMethod)(MachPort connection, std::uint32_t selector,
                                            const void* input, std::size_t inputSize, void* output,
                                            std::size_t* outputSize) = nullptr;

    CFTypeRef (*copyPowerSourcesInfo)() = nullptr;                ///< IOPS…
    CFTypeRef (*copyPowerSourcesList)(CFTypeRef info) = nullptr;  ///< IOPS…
    /// Borrowed from `info`.
    CFTypeRef (*getPowerSourceDescription)(CFTypeRef info, CFTypeRef source) = nullptr;  ///< IOPS…
};

}  // namespace vantor

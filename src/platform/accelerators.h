#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/property_value.h"

namespace vantor {

/// The accelerator services of the system's registry: what the graphics drivers publish about
/// themselves. One thread at a time.
///
/// macOS: IOServiceMatching("IOAccelerator"), IOServiceGetMatchingServices, IOIteratorNext,
/// IORegistryEntryCreateCFProperty, IORegistryEntryGetRegistryEntryID, IOObjectRelease. Linux: the
/// graphics drivers' files of /sys, the fdinfo of the user's processes, and NVML.
class Accelerators {
  public:
    using Object = std::uint32_t;  ///< 0 = none

    virtual ~Accelerators() = default;

    /// An iterator over the services; absent when nothing could be looked up, which then needs no
    /// release. Where there is no service, 0 or an iterator without services.
    virtual std::optional<Object> matchingServices() = 0;

    /// The next service, 0 behind the last. Of the iterator 0 there is none.
    virtual Object iteratorNext(Object iterator) = 0;

    /// Of a service: "PerformanceStatistics" (a dictionary of numbers, nested as the driver likes)
    /// or "model" (a text, or data that holds one). Null when there is none; valid until the next
    /// call.
    virtual const PropertyValue* property(Object service, std::string_view key) = 0;

    virtual std::optional<std::uint64_t> registryEntryID(Object service) = 0;

    /// Gives an iterator or a service back.
    virtual void release(Object object) = 0;
};

}  // namespace vantor

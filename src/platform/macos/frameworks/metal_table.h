#pragma once

namespace vantor {

/// The functions of Metal that are used, each null where it was not found.
struct MetalTable {
    /// An array of devices, to be released.
    const void* (*copyAllDevices)() = nullptr;
    /// A device, to be released. A notebook with two graphics processors changes to the fast one.
    const void* (*createSystemDefaultDevice)() = nullptr;
};

}  // namespace vantor

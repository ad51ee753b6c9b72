#pragma once

#include <memory>
#include <string>

#include "platform/linux/graphics/graphics_library.h"

namespace vantor {

/// NVML, the library of NVIDIA's driver (https://docs.nvidia.com/deploy/nvml-api), loaded when it
/// is opened for the first time; a machine without it has none. Each of its functions may be
/// missing.
///
/// It is initialised in the way that touches no device, and a device is touched when it is asked
/// for by its address, that one alone.
std::shared_ptr<GraphicsLibrary> makeNVMLLibrary(std::string file = "libnvidia-ml.so.1");

}  // namespace vantor

#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/linux/graphics/graphics_figures.h"
#include "platform/linux/graphics/pci_address.h"

namespace vantor {

/// A driver's own library for what its devices do, where the kernel's files do not tell: NVML of
/// NVIDIA's driver. One thread at a time.
///
/// Asking a device keeps it awake, and so may the library's being open: that is for the caller to
/// mind.
class GraphicsLibrary {
  public:
    struct Answer {
        std::optional<std::string> name;
        GraphicsFigures figures;
    };

    virtual ~GraphicsLibrary() = default;

    /// False when there is no such library, or it fails; may be called when it is open.
    virtual bool open() = 0;

    /// Of an open library; all is absent for a device that it does not know or that was lost.
    virtual Answer ask(const PCIAddress& address) = 0;

    /// Lets go of all devices; may be called when it is not open.
    virtual void close() = 0;
};

}  // namespace vantor

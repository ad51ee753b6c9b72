#pragma once

#include <memory>

#include "platform/linux/file_systems.h"
#include "platform/linux/graphics_library.h"
#include "platform/linux/link_source.h"
#include "platform/linux/process_clocks.h"
#include "platform/linux/route_source.h"

namespace vantor {

/// What is asked of the kernel by system calls instead of files. A recorded machine answers them
/// from text.
struct LinuxCalls {
    std::shared_ptr<FileSystems> fileSystems;
    std::shared_ptr<LinkSource> links;
    std::shared_ptr<ProcessClocks> processClocks;
    std::shared_ptr<GraphicsLibrary> graphicsLibrary = nullptr;  ///< null when there is none
    std::shared_ptr<RouteSource> routes =
        nullptr;  ///< null: there are the files of /proc/net alone

    /// Those of the kernel that this program runs on.
    static LinuxCalls live();
};

}  // namespace vantor

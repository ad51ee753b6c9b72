#pragma once

#include <memory>

#include "platform/linux/graphics/graphics_library.h"
#include "platform/linux/network/link_source.h"
#include "platform/linux/network/route_source.h"
#include "platform/linux/processes/process_clocks.h"
#include "platform/linux/storage/file_systems.h"

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

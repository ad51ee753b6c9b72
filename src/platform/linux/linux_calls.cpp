#include "platform/linux/linux_calls.h"

#include "platform/linux/nvml_library.h"

namespace vantor {

LinuxCalls LinuxCalls::live() {
    return {makeLiveFileSystems(), makeLiveLinkSource(), makeLiveProcessClocks(), makeNVMLLibrary(),
            makeLiveRouteSource()};
}

}  // namespace vantor

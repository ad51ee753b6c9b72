#include "platform/linux/linux_calls.h"

namespace vantor {

LinuxCalls LinuxCalls::live() {
    return {makeLiveFileSystems(), makeLiveLinkSource(), makeLiveProcessClocks()};
}

}  // namespace vantor

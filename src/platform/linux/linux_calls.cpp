#include "platform/linux/linux_calls.h"

#include "platform/linux/nvml_library.h"
#include "platform/linux/patient_file_systems.h"

namespace vantor {

LinuxCalls LinuxCalls::live() {
    return {std::make_shared<PatientFileSystems>(makeLiveFileSystems()), makeLiveLinkSource(),
            makeLiveProcessClocks(), makeNVMLLibrary(), makeLiveRouteSource()};
}

}  // namespace vantor

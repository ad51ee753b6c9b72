#include "platform/linux/files/linux_calls.h"

#include "platform/linux/graphics/nvml_library.h"
#include "platform/linux/storage/patient_file_systems.h"

namespace vantor {

LinuxCalls LinuxCalls::live() {
    return {std::make_shared<PatientFileSystems>(makeLiveFileSystems()), makeLiveLinkSource(),
            makeLiveProcessClocks(), makeNVMLLibrary(), makeLiveRouteSource()};
}

}  // namespace vantor

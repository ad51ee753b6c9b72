#include "platform/linux/linux_accelerators.h"

namespace vantor {

std::optional<Accelerators::Object> LinuxAccelerators::matchingServices() {
    return std::nullopt;
}

Accelerators::Object LinuxAccelerators::iteratorNext(Object) {
    return 0;
}

const PropertyValue* LinuxAccelerators::property(Object, std::string_view) {
    return nullptr;
}

std::optional<std::uint64_t> LinuxAccelerators::registryEntryID(Object) {
    return std::nullopt;
}

void LinuxAccelerators::release(Object) {}

}  // namespace vantor

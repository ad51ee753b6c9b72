#include "platform/simulated/simulated_accelerators.h"

namespace vantor {

std::optional<Accelerators::Object> SimulatedAccelerators::matchingServices() {
    return std::nullopt;
}

Accelerators::Object SimulatedAccelerators::iteratorNext(Object) {
    return 0;
}

const PropertyValue* SimulatedAccelerators::property(Object, std::string_view) {
    return nullptr;
}

std::optional<std::uint64_t> SimulatedAccelerators::registryEntryID(Object) {
    return std::nullopt;
}

void SimulatedAccelerators::release(Object) {}

}  // namespace vantor

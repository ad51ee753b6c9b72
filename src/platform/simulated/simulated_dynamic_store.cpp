#include "platform/simulated/simulated_dynamic_store.h"

namespace vantor {

const PropertyValue* SimulatedDynamicStore::copyValue(std::string_view key) {
    ++lookups;
    const auto found = values.find(key);
    return found == values.end() ? nullptr : &found->second;
}

}  // namespace vantor

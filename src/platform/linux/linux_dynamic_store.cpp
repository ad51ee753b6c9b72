#include "platform/linux/linux_dynamic_store.h"

namespace vantor {

const PropertyValue* LinuxDynamicStore::copyValue(std::string_view) {
    return nullptr;
}

}  // namespace vantor

#pragma once

#include <map>
#include <string>

#include "platform/darwin/dynamic_store.h"

namespace vantor {

/// A store by script.
class SimulatedDynamicStore : public DynamicStore {
  public:
    std::map<std::string, PropertyValue, std::less<>> values;
    int lookups = 0;

    const PropertyValue* copyValue(std::string_view key) override;
};

}  // namespace vantor

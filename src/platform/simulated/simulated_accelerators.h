#pragma once

#include "platform/accelerators.h"

namespace vantor {

/// By script.
class SimulatedAccelerators : public Accelerators {
  public:
    std::optional<Object> matchingServices() override;
    Object iteratorNext(Object iterator) override;
    const PropertyValue* property(Object service, std::string_view key) override;
    std::optional<std::uint64_t> registryEntryID(Object service) override;
    void release(Object object) override;
};

}  // namespace vantor

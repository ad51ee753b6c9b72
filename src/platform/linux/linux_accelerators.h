#pragma once

#include <utility>

#include "platform/accelerators.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// Tells of nothing yet.
class LinuxAccelerators : public Accelerators {
  public:
    explicit LinuxAccelerators(LinuxRoots roots) : roots_(std::move(roots)) {}

    std::optional<Object> matchingServices() override;
    Object iteratorNext(Object iterator) override;
    const PropertyValue* property(Object service, std::string_view key) override;
    std::optional<std::uint64_t> registryEntryID(Object service) override;
    void release(Object object) override;

  private:
    [[maybe_unused]] LinuxRoots roots_;
};

}  // namespace vantor

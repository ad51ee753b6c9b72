#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/frameworks/property_conversion.h"
#include "platform/name_order.h"

namespace vantor {

/// The comparison of the user's locale by Core Foundation, as the Finder sorts names.
class MacNameOrder : public NameOrder {
  public:
    explicit MacNameOrder(std::shared_ptr<const Frameworks> frameworks);

    std::vector<std::uint32_t> ranks(std::span<const std::string> names) override;

  private:
    std::shared_ptr<const Frameworks> frameworks_;
    PropertyConversion conversion_;
};

}  // namespace vantor

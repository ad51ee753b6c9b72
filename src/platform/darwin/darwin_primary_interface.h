#pragma once

#include "platform/darwin/dynamic_store.h"
#include "platform/primary_interface.h"

namespace vantor {

/// What a Mac's dynamic store tells. `store` must outlive it.
class DarwinPrimaryInterface : public PrimaryInterface {
  public:
    explicit DarwinPrimaryInterface(DynamicStore& store) : store_(store) {}

    std::optional<std::string_view> name() override;

  private:
    DynamicStore& store_;
};

}  // namespace vantor

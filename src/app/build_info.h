#pragma once

#include "platform/bundle_info.h"

namespace vantor {

/// The version facts that the build has compiled into the program.
class BuildInfo : public BundleInfo {
  public:
    std::optional<std::string> text(std::string_view key) const override;
};

}  // namespace vantor

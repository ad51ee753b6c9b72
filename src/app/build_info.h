#pragma once

#include "platform/bundle_info.h"

namespace vantor {

/// The facts that the build has put into the program.
class BuildInfo : public BundleInfo {
  public:
    std::optional<std::string> text(std::string_view key) const override;
};

}  // namespace vantor

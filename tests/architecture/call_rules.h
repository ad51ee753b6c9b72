#pragma once

#include <filesystem>
#include <vector>

#include "architecture/layer_rules.h"

namespace vantor {

/// Checks the headers that lie directly in `folder`, those of the platform's calls: every virtual
/// function is pure, so that an adapter answers all of them or does not compile, and none falls
/// back to a default. Destructors may be defined.
///
/// The breaches come sorted by file and line.
std::vector<Breach> findDefaults(const std::filesystem::path& folder);

}  // namespace vantor

#pragma once

#include <QString>

#include <memory>
#include <vector>

#include "ui/rendering.h"

#include "lived_machine.h"

namespace vantor {

/// The dashboards of computers that were recorded with their own system's files, at work by fixed
/// curves; in order of their names. None on a system whose adapters cannot read them.
std::vector<std::unique_ptr<LivedDashboard>> recordedDashboards(ColorScheme scheme, int steps);

}  // namespace vantor

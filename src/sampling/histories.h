#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "sampling/dashboard_state.h"

namespace vantor {

/// The number of samples that a history may hold for that setting.
std::size_t historyLimit(std::int64_t historyLength);

/// Appends, then drops the oldest values beyond `limit`. Storage is kept.
void appendToHistory(double value, std::vector<double>& history, std::size_t limit);

/// Drops the oldest values beyond `limit` from each history; false when none was longer.
bool trimHistories(Histories& histories, std::size_t limit);

}  // namespace vantor

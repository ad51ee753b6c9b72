#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/system_snapshot.h"
#include "sampling/dashboard_state.h"
#include "sampling/pending_update.h"

/// How results become the state that the views read. Pure functions.
namespace vantor {

/// How long results are collected before they are committed together, so that a tick redraws the
/// dashboard once instead of eight times.
inline constexpr std::chrono::nanoseconds commitDelay{30'000'000};

/// The number of samples that a history may hold for that setting.
std::size_t historyLimit(std::int64_t historyLength);

/// Appends, then drops the oldest values beyond `limit`. Storage is kept.
void appendToHistory(double value, std::vector<double>& history, std::size_t limit);

/// Drops the oldest values beyond `limit` from each history; false when none was longer.
bool trimHistories(Histories& histories, std::size_t limit);

/// Folds `update` into `state` and stamps it with `now`, and its new samples with
/// `uptime`, seconds; false when nothing changed (the state's timestamp is then not worth
/// publishing). The update's records are moved from.
bool applyUpdate(PendingUpdate&& update, DashboardState& state, std::size_t limit, Timestamp now,
                 double uptime);

}  // namespace vantor

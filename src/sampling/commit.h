#pragma once

#include <chrono>
#include <cstddef>

#include "sampling/dashboard_state.h"
#include "sampling/pending_update.h"

/// How results become the state that the views read. Pure functions.
namespace vantor {

/// How long results are collected before they are committed together, so that a tick redraws the
/// dashboard once instead of eight times.
inline constexpr std::chrono::milliseconds commitDelay{30};

/// Folds `update` into `state` and stamps it with `now`, and its new samples with
/// `uptime`, seconds; false when nothing changed (the state's timestamp is then not worth
/// publishing). The update's records are moved from.
bool applyUpdate(PendingUpdate&& update, DashboardState& state, std::size_t limit, Timestamp now,
                 double uptime);

}  // namespace vantor

#pragma once

#include <string>

#include "model/calendar_time.h"
#include "model/timestamp.h"

namespace vantor {

struct SystemSnapshot;

/// The moment that a snapshot's file is named after: when the snapshot was committed, and `now`
/// for the placeholder that it is until the first commit.
Timestamp fileMoment(const SystemSnapshot& snapshot, Timestamp now);

/// The name proposed for a snapshot of that local time, e.g. "Vantor-2026-02-03-090507.json": the
/// same digits in every language, and in the order of time when sorted.
std::string snapshotFileName(const CalendarTime& localTime);

}  // namespace vantor

#pragma once

#include <chrono>
#include <cstddef>
#include <ctime>

#include "platform/posix/file_calls.h"

/// What a program that was killed has left in a folder.
namespace vantor::LeftoverFiles {

inline constexpr std::time_t minLeftoverAge = 3600;  ///< seconds
/// A folder may have a hundred thousand entries, on a slow disk. What is not found among those that
/// are looked at ("." and ".." count) stays, perhaps for good: the order is the file system's.
inline constexpr std::size_t maxEntries = 10'000;
inline constexpr std::chrono::milliseconds maxLookTime{50};

/// Removes the user's own files of a TemporaryFile's passing name that are older than
/// minLeftoverAge, have no other name and are not locked. `now` is by the clock of the disk, which
/// dates the files: the time of a file that was just written there. A clock that is set while one
/// is being written makes it look old, but its lock keeps it; a file from the future stays. Where
/// locks are not known nothing is removed. No link is followed. `folder` can be listed and stays
/// the caller's. Failures are ignored.
void remove(FileCalls& calls, int folder, std::time_t now, std::size_t entries = maxEntries);

}  // namespace vantor::LeftoverFiles

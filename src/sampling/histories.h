#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantor {

/// When each sample of a history was committed, in seconds of the machine's uptime: pauses and
/// other intervals make the distances uneven.
struct HistoryTimes {
    std::vector<double> cpu;
    std::vector<double> memory;
    std::vector<double> network;  ///< of download and of upload
    std::vector<double> gpu;

    bool operator==(const HistoryTimes&) const = default;
};

/// The bounded series that the charts draw, each oldest first.
struct Histories {
    std::vector<double> cpu;       ///< total usage, 0 to 1
    std::vector<double> memory;    ///< used fraction, 0 to 1
    std::vector<double> download;  ///< bytes per second
    std::vector<double> upload;
    std::vector<double> gpu;  ///< utilization of one device, 0 to 1
    HistoryTimes times;

    bool operator==(const Histories&) const = default;
};

/// The number of samples that a history may hold for that setting.
std::size_t historyLimit(std::int64_t historyLength);

/// Appends, then drops the oldest values beyond `limit`. Storage is kept.
void appendToHistory(double value, std::vector<double>& history, std::size_t limit);

/// Drops the oldest values beyond `limit` from each history; false when none was longer.
bool trimHistories(Histories& histories, std::size_t limit);

}  // namespace vantor

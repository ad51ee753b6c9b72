#pragma once

#include <QLocale>
#include <QString>

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "model/process_stats.h"
#include "sampling/dashboard_state.h"
#include "ui/components/empty_state_view.h"

namespace vantor {

/// By what the processes are sorted.
enum class SortMode { cpu, memory };

inline constexpr std::array allSortModes{SortMode::cpu, SortMode::memory};
QString sortModeLabel(SortMode mode);

/// The processes that the explorer lists, borrowed from the published state. Two are equal when
/// their revisions are.
struct ProcessExplorer {
    /// More rows would need scrolling; the filter finds the others.
    static constexpr std::size_t maxRows = 18;

    std::span<const ProcessStats> processes;
    std::span<const ProcessStats> sortedByCPU;     ///< its first ones at least
    std::span<const ProcessStats> sortedByMemory;  ///< likewise
    std::uint64_t revision = 0;

    static ProcessExplorer of(const DashboardState& state);

    bool operator==(const ProcessExplorer& other) const { return revision == other.revision; }

    /// The rows in the order of the sort; with a query those that match it, out of all processes.
    std::vector<const ProcessStats*> makeVisibleProcesses(const QString& query, SortMode mode,
                                                          const QLocale& locale = QLocale()) const;

    static EmptyState noProcesses();
    static EmptyState noMatch(const QString& query);
};

/// What stands above the columns.
struct ProcessHeader {
    static QString title(std::size_t column);  ///< of four
};

/// One visible process, and what its bars are measured by.
struct ProcessRow {
    const ProcessStats& process;
    double maximumCPU = 0;  ///< the largest of the visible rows
    std::uint64_t maximumMemory = 0;

    QString cpuText() const;
    QString memoryText() const;
    double cpuShare() const;  ///< 0 to 1
    double memoryShare() const;
};

}  // namespace vantor

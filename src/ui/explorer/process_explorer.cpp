#include "ui/explorer/process_explorer.h"

#include <QCoreApplication>

#include <algorithm>

#include "ui/explorer/process_search.h"
#include "ui/formatters.h"
#include "ui/translate.h"

namespace vantor {

namespace {

bool isBefore(const ProcessStats& a, const ProcessStats& b, SortMode mode) {
    if (mode == SortMode::cpu && a.cpuPercent != b.cpuPercent) return a.cpuPercent > b.cpuPercent;
    if (mode == SortMode::memory && a.residentMemoryBytes != b.residentMemoryBytes) {
        return a.residentMemoryBytes > b.residentMemoryBytes;
    }
    return a.pid < b.pid;
}

}  // namespace

QString sortModeLabel(SortMode mode) {
    return mode == SortMode::cpu
               ? /*: sort by the share of the processor */ translate("ProcessExplorer", "CPU")
               : /*: sort by the memory used */ translate("ProcessExplorer", "Memory");
}

ProcessExplorer ProcessExplorer::of(const DashboardState& state) {
    return {state.snapshot.processes, state.processesByCPU, state.processesByMemory,
            state.revisions.processes};
}

std::vector<const ProcessStats*> ProcessExplorer::makeVisibleProcesses(
    const QString& query, SortMode mode, const QLocale& locale) const {
    std::vector<const ProcessStats*> visible;
    if (query.isEmpty()) {
        const auto sorted = mode == SortMode::cpu ? sortedByCPU : sortedByMemory;
        for (const ProcessStats& process : sorted.first(std::min(sorted.size(), maxRows)))
            visible.push_back(&process);
        return visible;
    }
    // The sorted lists hold only the first ones: a search has to find the others, too.
    const ProcessSearch search(query, locale);
    for (const ProcessStats& process : processes) {
        if (search.matches(process)) visible.push_back(&process);
    }
    const auto count = std::min(visible.size(), maxRows);
    std::partial_sort(
        visible.begin(), visible.begin() + static_cast<std::ptrdiff_t>(count), visible.end(),
        [mode](const ProcessStats* a, const ProcessStats* b) { return isBefore(*a, *b, mode); });
    visible.resize(count);
    return visible;
}

EmptyState ProcessExplorer::noProcesses() {
    return {translate("ProcessExplorer", "Waiting for Processes"),
            QStringLiteral("list.bullet.rectangle.portrait"),
            translate("ProcessExplorer", "No process data is available yet.")};
}

EmptyState ProcessExplorer::noMatch(const QString& query) {
    // More has been pasted, not typed, and need not be shown in full.
    constexpr qsizetype longest = 400;
    const QString shown = query.size() > longest ? query.left(longest) + u'…' : query;
    return {translate("ProcessExplorer", "No Matching Processes"),
            QStringLiteral("magnifyingglass"),

            //: %1 is what the user has typed
            translate("ProcessExplorer", "No process matches “%1”.").arg(shown)};
}

QString ProcessHeader::title(std::size_t column) {
    static constexpr std::array titles{//: the heading of a column
                                       QT_TRANSLATE_NOOP("ProcessHeader", "Process"),
                                       //: the heading of a column: the number of a process
                                       QT_TRANSLATE_NOOP("ProcessHeader", "PID"),
                                       //: the heading of a column: the share of the processor
                                       QT_TRANSLATE_NOOP("ProcessHeader", "CPU"),
                                       //: the heading of a column: the memory used
                                       QT_TRANSLATE_NOOP("ProcessHeader", "Memory")};
    return translate("ProcessHeader", titles.at(column));
}

QString ProcessRow::cpuText() const {
    return Formatters::percentOf(Formatters::fixed(process.cpuPercent, 1));
}

QString ProcessRow::memoryText() const {
    return Formatters::bytes(process.residentMemoryBytes);
}

double ProcessRow::cpuShare() const {
    return maximumCPU > 0 ? process.cpuPercent / maximumCPU : 0;
}

double ProcessRow::memoryShare() const {
    if (maximumMemory == 0) return 0;
    return static_cast<double>(process.residentMemoryBytes) / static_cast<double>(maximumMemory);
}

}  // namespace vantor

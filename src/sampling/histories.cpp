#include "sampling/histories.h"

#include "settings/app_settings.h"

namespace vantor {

namespace {

bool dropOldest(std::vector<double>& history, std::size_t limit) {
    if (history.size() <= limit) return false;
    history.erase(history.begin(),
                  history.begin() + static_cast<std::ptrdiff_t>(history.size() - limit));
    return true;
}

}  // namespace

std::size_t historyLimit(std::int64_t historyLength) {
    return static_cast<std::size_t>(AppSettings::clampHistoryLength(historyLength));
}

void appendToHistory(double value, std::vector<double>& history, std::size_t limit) {
    history.push_back(value);
    dropOldest(history, limit);
}

bool trimHistories(Histories& histories, std::size_t limit) {
    bool trimmed = false;
    forEachHistory(histories, [&](std::vector<double>& history) {
        trimmed = dropOldest(history, limit) || trimmed;
    });
    return trimmed;
}

}  // namespace vantor

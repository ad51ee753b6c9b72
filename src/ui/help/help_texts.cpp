#include "ui/help/help_texts.h"

#include <QStringList>

#include <optional>
#include <string_view>
#include <utility>

#include "settings/app_settings.h"
#include "ui/core_words.h"
#include "ui/formatters.h"
#include "ui/translate.h"

namespace vantor {

namespace {

QString text(std::string_view words) {
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
}

/// "0.5, 1, 2, 5 or 10 seconds".
QString offeredIntervals() {
    QStringList numbers;
    for (const double seconds : AppSettings::refreshIntervals)
        numbers << Formatters::number(seconds);
    const QString last = numbers.takeLast();
    return
        //: %1 are all numbers but the last: "0.5, 1, 2, 5 or 10 seconds"
        translate("HelpTexts", "%1 or %2 seconds").arg(listed(numbers), last);
}

HelpSection liveMonitoring() {
    return {translate("HelpTexts", "Live Monitoring"),

            //: %1 is "0.5, 1, 2, 5 or 10 seconds"
            translate("HelpTexts",
                      "Choose a refresh interval from %1. Pause stops periodic sampling, "
                      "Refresh Now requests a fresh snapshot, and the charts keep only the "
                      "configured bounded history.")
                .arg(offeredIntervals())};
}

HelpSection dashboard(const PlatformWords& words) {
    return {translate("HelpTexts", "Dashboard"),

            //: %1 is what publishes graphics figures, such as NVML
            translate("HelpTexts",
                      "CPU shows total and per-logical-processor activity. Memory shows "
                      "current pressure-related usage values. Network reports local "
                      "interface traffic. GPU values are shown only when %1 or the active "
                      "graphics driver publishes them. Storage and power data update at "
                      "lower cadences because they do not require sub-second polling.")
                .arg(text(words.graphicsInterface))};
}

HelpSection processExplorer(const PlatformWords& words) {
    return {translate("HelpTexts", "Process Explorer"),

            //: %1 is the name of the system, %2 of what tells of processes: "Linux procfs"
            translate("HelpTexts",
                      "The process list uses native %1 %2 data. Sort by CPU or memory and "
                      "use the filter field to locate a running process. Vantor does not "
                      "launch external command-line tools to collect process telemetry.")
                .arg(text(words.systemName), text(words.processInterface))};
}

HelpSection menuBarAndWindows(const PlatformWords& words) {
    return {translate("HelpTexts", "Menu Bar and Windows"),

            //: %1 is what is pressed to quit, such as Ctrl+Q
            translate("HelpTexts",
                      "When the menu bar dashboard is enabled, closing the main window keeps "
                      "Vantor available from the menu bar. When it is disabled, closing the "
                      "last window exits the app. Use Quit or %1 to terminate Vantor "
                      "completely.")
                .arg(text(words.quitKeys))};
}

/// Where the names of figures come from another system.
std::optional<HelpSection> numbers(const FigureMeanings& meanings) {
    QStringList sentences;
    for (const std::string_view meaning : {meanings.nominal, meanings.wired, meanings.compressed,
                                           meanings.thermalState, meanings.lowPowerMode}) {
        if (!meaning.empty()) sentences << wordedForPeople(meaning);
    }
    if (sentences.isEmpty()) return std::nullopt;
    sentences << translate(
        "HelpTexts",
        "Amounts of memory and storage count in steps of 1024, so that 1 GB is 1,073,741,824 "
        "bytes, as the kernel hands memory out; rates count in steps of 1000, as networks do. A "
        "process's CPU share is of one processor: 100% is one kept busy, and a process on several "
        "has more.");
    return HelpSection{translate("HelpTexts", "What the Numbers Mean"), sentences.join(u' ')};
}

}  // namespace

QString HelpTexts::summary(const PlatformWords& words) {
    return
        //: %1 is the name of the system
        translate("HelpTexts",
                  "Vantor is a local %1 performance dashboard for live CPU, memory, "
                  "network, GPU, storage, process and system telemetry.")
            .arg(text(words.systemName));
}

std::vector<HelpSection> HelpTexts::sections(const PlatformWords& words) {
    std::vector<HelpSection> all{
        liveMonitoring(),
        dashboard(words),
        processExplorer(words),
        menuBarAndWindows(words),
        {translate("HelpTexts", "Export and Privacy"),
         translate("HelpTexts",
                   "All monitoring is performed locally. Vantor does not perform "
                   "analytics, public-IP lookups or automatic data transmission. A JSON "
                   "snapshot is written only when you explicitly choose Export and "
                   "select a destination.")}};
    if (auto meaning = numbers(words.meanings)) all.push_back(std::move(*meaning));
    return all;
}

}  // namespace vantor

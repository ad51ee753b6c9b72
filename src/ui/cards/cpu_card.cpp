#include "ui/cards/cpu_card.h"

#include <QStringList>
#include <QVBoxLayout>

#include <cmath>
#include <optional>
#include <utility>

#include "ui/cards/card_texts.h"
#include "ui/components/make_child.h"
#include "ui/components/tool_tip_text.h"
#include "ui/core_words.h"
#include "ui/formatters.h"
#include "ui/shown_text.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr int cpuCardChartHeight = 62;
constexpr int sectionSpacing = 8;
// Enough to name the culprit; the process explorer has the rest.
constexpr std::size_t cpuCardProcessRows = 5;

}  // namespace

CPUCard CPUCard::of(const DashboardState& state) {
    return {state.snapshot.cpu,  state.histories.cpu,       state.processesByCPU,
            state.revisions.cpu, state.revisions.processes, state.histories.times.cpu};
}

DashboardCard CPUCard::frame() const {
    const QString subtitle =
        isWaiting()
            ? wordedForPeople(stats.model)
            : /*: the numbers of cores; %1 stays in front where both are read as one phrase */
            translate("CPUCard", "%1 physical • %2 logical cores")
                .arg(Formatters::count(stats.physicalCoreCount),
                     Formatters::count(stats.logicalCoreCount));
    return {//: the title of the card
            translate("CPUCard", "CPU"), subtitle, QStringLiteral("cpu"), VantorTheme::cyan()};
}

RingGauge CPUCard::gauge() const {
    const QString title =
        isWaiting() ? CardTexts::unknownYet() : Formatters::percent(stats.totalUsage, 0);
    return {isWaiting() ? RingGauge::noValue : stats.totalUsage, title,
            //: under the share of the processor that is busy
            translate("CPUCard", "CPU Load"), VantorTheme::cyan(),
            GaugeAndRowsView::gaugeLineWidth};
}

std::array<MetricRow, 4> CPUCard::rows() const {
    const QString absent = isWaiting() ? CardTexts::unknownYet() : CardTexts::notPublished();
    const auto share = [&](double value) {
        return isWaiting() ? std::nullopt : std::optional(Formatters::percent(value, 1));
    };
    std::optional<QString> nominal;
    if (stats.nominalFrequencyHz) {
        const double gigahertz = static_cast<double>(*stats.nominalFrequencyHz) / 1e9;
        //: a frequency
        nominal = translate("CPUCard", "%1 GHz").arg(Formatters::fixed(gigahertz, 2));
    }
    using CardTexts::row;
    return {
        row(  //: the share of time spent in programs
            translate("CPUCard", "User"), share(stats.userUsage), absent, VantorTheme::orange()),
        row(  //: the share of time spent in the operating system
            translate("CPUCard", "System"), share(stats.systemUsage), absent, VantorTheme::blue()),
        row(  //: the frequency that the processor is sold with
            translate("CPUCard", "Nominal"), nominal, absent, VantorTheme::pink()),
        row(translate("CPUCard", "Temperature"), CardTexts::temperature(stats.temperatureCelsius),
            absent, VantorTheme::purple())};
}

QString CPUCard::loadAverageText() const {
    QStringList averages;
    for (const double average : stats.loadAverage)
        averages << Formatters::fixed(average, 2);
    if (averages.isEmpty()) averages << CardTexts::unknownYet();
    return
        //: %1 are the averages of the last minutes, such as 0.52  0.58  0.59
        translate("CPUCard", "Load avg %1").arg(averages.join(QStringLiteral("  ")));
}

CPUCardView::CPUCardView(const ProcessInfo& versions, QWidget* parent)
    : DashboardCardView(CPUCard::of(DashboardState{}).frame(), parent) {
    const DashboardState waiting;
    const CPUCard card = CPUCard::of(waiting);
    figures_ = makeChild<GaugeAndRowsView>(this, card.gauge(), card.rows());
    body().addWidget(figures_);
    loadAverage_ = makeChild<TextLineView>(this, card.loadAverageText(), Typography::caption,
                                           QFont::Normal, TextLineView::Tone::secondary);
    // Beside the ring, so that the chart begins where the neighbour's does.
    figures_->addLine(loadAverage_);
    // The whole range, not the values' own: an idle machine must look idle.
    history_ = makeChild<SparklineView>(this,
                                        //: of the chart, for screen readers
                                        translate("CPUCard", "CPU history"),
                                        Sparkline{{}, VantorTheme::cyan(), std::pair{0.0, 1.0}},
                                        cpuCardChartHeight);
    body().addWidget(history_);
    auto* activity = makeInnerLayout<QVBoxLayout>();
    activity->setSpacing(sectionSpacing);
    activity->addWidget(makeChild<TextLineView>(this,
                                                //: how busy each logical processor is
                                                translate("CPUCard", "Core Activity"),
                                                Typography::caption, QFont::Normal,
                                                TextLineView::Tone::secondary));
    cores_ = makeChild<CoreActivityView>(this);
    activity->addWidget(cores_);
    body().addLayout(activity);
    processes_ = makeChild<ProcessMiniListView>(
        this,
        ProcessMiniList{//: the processes that keep the processor busiest
                        translate("CPUCard", "Top CPU Processes"),
                        {},
                        ProcessMiniList::Metric::cpu},
        cpuCardProcessRows, processSymbol(versions));
    processes_->fillHeight();
    body().addWidget(processes_, 1);
    // The list's title stands on a line of the neighbour's list, which begins beside the cells.
    cores_->setHeightRule([this, activity](double cells) {
        const double before = activity->itemAt(0)->sizeHint().height() + sectionSpacing;
        const double pitch = processes_->pitch();
        const double whole = before + cells + body().spacing();
        return std::ceil(whole / pitch) * pitch - before - body().spacing();
    });
}

void CPUCardView::explain(const FigureMeanings& meanings) {
    constexpr std::size_t nominalRow = 2;
    row(nominalRow).explain(wordedForPeople(meanings.nominal));
}

/// What hardly ever changes is not worded anew with each reading.
void CPUCardView::showProcessor(const CPUCard& card) {
    const CPUStats& stats = card.stats;
    std::optional<Processor> processor;
    if (!card.isWaiting())
        processor = {stats.model, stats.physicalCoreCount, stats.logicalCoreCount};
    if (processor && processor == processor_) return;
    showCard(card.frame());
    header().setToolTip(toolTipText(shownText(stats.model)));
    processor_ = std::move(processor);
}

void CPUCardView::show(const CPUCard& card) {
    if (card.revision != revision_) {
        showProcessor(card);
        figures_->show(card.gauge(), card.rows());
        loadAverage_->show(card.loadAverageText());
        history_->show(card.history, card.gauge().title, card.historyTimes);
        cores_->show(card.stats.perCoreUsage);
        revision_ = card.revision;
    }
    if (card.processRevision != processRevision_) {
        processes_->show(card.processes);
        processRevision_ = card.processRevision;
    }
}

}  // namespace vantor

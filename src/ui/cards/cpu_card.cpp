#include "ui/cards/cpu_card.h"

#include <QStringList>
#include <QVBoxLayout>

#include <cmath>

#include "ui/cards/card_texts.h"
#include "ui/components/make_child.h"
#include "ui/components/tool_tip_text.h"
#include "ui/formatters.h"
#include "ui/shown_text.h"
#include "ui/theme.h"
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
    const QString subtitle = isWaiting() ? shownText(stats.model)
                                         : QStringLiteral("%1 physical • %2 logical cores")
                                               .arg(stats.physicalCoreCount)
                                               .arg(stats.logicalCoreCount);
    return {QStringLiteral("CPU"), subtitle, QStringLiteral("cpu"), VantorTheme::cyan()};
}

RingGauge CPUCard::gauge() const {
    const QString title =
        isWaiting() ? CardTexts::unknownYet() : Formatters::percent(stats.totalUsage, 0);
    return {isWaiting() ? RingGauge::noValue : stats.totalUsage, title, QStringLiteral("CPU Load"),
            VantorTheme::cyan(), GaugeAndRowsView::gaugeLineWidth};
}

std::array<MetricRow, 4> CPUCard::rows() const {
    const QString absent = isWaiting() ? CardTexts::unknownYet() : CardTexts::notPublished();
    const auto share = [&](double value) {
        return isWaiting() ? std::nullopt : std::optional(Formatters::percent(value, 1));
    };
    std::optional<QString> nominal;
    if (stats.nominalFrequencyHz) {
        nominal = Formatters::fixed(static_cast<double>(*stats.nominalFrequencyHz) / 1e9, 2) +
                  QStringLiteral(" GHz");
    }
    using CardTexts::row;
    return {row(QStringLiteral("User"), share(stats.userUsage), absent, VantorTheme::orange()),
            row(QStringLiteral("System"), share(stats.systemUsage), absent, VantorTheme::blue()),
            row(QStringLiteral("Nominal"), nominal, absent, VantorTheme::pink()),
            row(QStringLiteral("Temperature"), CardTexts::temperature(stats.temperatureCelsius),
                absent, VantorTheme::purple())};
}

QString CPUCard::loadAverageText() const {
    QStringList averages;
    for (const double average : stats.loadAverage)
        averages << Formatters::fixed(average, 2);
    if (averages.isEmpty()) averages << CardTexts::unknownYet();
    return QStringLiteral("Load avg ") + averages.join(QStringLiteral("  "));
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
    history_ = makeChild<SparklineView>(this, QStringLiteral("CPU history"),
                                        Sparkline{{}, VantorTheme::cyan(), std::pair{0.0, 1.0}},
                                        cpuCardChartHeight);
    body().addWidget(history_);
    auto* activity = makeInnerLayout<QVBoxLayout>();
    activity->setSpacing(sectionSpacing);
    activity->addWidget(makeChild<TextLineView>(this, QStringLiteral("Core Activity"),
                                                Typography::caption, QFont::Normal,
                                                TextLineView::Tone::secondary));
    cores_ = makeChild<CoreActivityView>(this);
    activity->addWidget(cores_);
    body().addLayout(activity);
    processes_ = makeChild<ProcessMiniListView>(
        this,
        ProcessMiniList{QStringLiteral("Top CPU Processes"), {}, ProcessMiniList::Metric::cpu},
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
    row(nominalRow).explain(CardTexts::text(meanings.nominal));
}

void CPUCardView::show(const CPUCard& card) {
    if (card.revision != revision_) {
        showCard(card.frame());
        header().setToolTip(toolTipText(shownText(card.stats.model)));
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

#include "ui/cards/memory_card.h"

#include "ui/cards/card_texts.h"
#include "ui/components/make_child.h"
#include "ui/core_words.h"
#include "ui/formatters.h"
#include "ui/theme.h"
#include "ui/translate.h"

namespace vantor {

namespace {

constexpr int memoryCardChartHeight = 62;
// At least; beside a higher card it has more.
constexpr std::size_t memoryCardProcessRows = 5;

double usedFraction(const MemoryStats& stats) {
    if (stats.totalBytes == 0) return 0;
    return std::min(static_cast<double>(stats.usedBytes) / static_cast<double>(stats.totalBytes),
                    1.0);
}

}  // namespace

MemoryCard MemoryCard::of(const DashboardState& state) {
    return {state.snapshot.memory,  state.histories.memory,    state.processesByMemory,
            state.revisions.memory, state.revisions.processes, state.histories.times.memory};
}

DashboardCard MemoryCard::frame() const {
    const QString subtitle =
        isWaiting() ? translate("MemoryCard", "Waiting for memory data")
                    : /*: %1 is an amount of memory */ translate("MemoryCard", "%1 installed")
                          .arg(Formatters::bytes(stats.totalBytes));
    return {//: the title of the card
            translate("MemoryCard", "Memory"), subtitle, QStringLiteral("memorychip"),
            VantorTheme::pink()};
}

RingGauge MemoryCard::gauge() const {
    const double used = usedFraction(stats);
    return {isWaiting() ? RingGauge::noValue : used,
            isWaiting() ? CardTexts::unknownYet() : Formatters::percent(used, 0),

            //: under the share of memory that is used
            translate("MemoryCard", "In Use"), VantorTheme::pink(),
            GaugeAndRowsView::gaugeLineWidth};
}

std::array<MetricRow, 4> MemoryCard::rows() const {
    const auto size = [&](std::uint64_t count) {
        return isWaiting() ? std::nullopt : std::optional(Formatters::bytes(count));
    };
    const auto row = [&](const QString& label, std::uint64_t count, const QColor& color) {
        return CardTexts::row(label, size(count), CardTexts::unknownYet(), color);
    };
    return {
        row(  //: memory used lately; the short label of a figure
            translate("MemoryCard", "Active"), stats.activeBytes, VantorTheme::blue()),
        row(  //: memory that the system keeps and cannot swap out; the short label of a figure
            translate("MemoryCard", "Wired"), stats.wiredBytes, VantorTheme::pink()),
        row(  //: memory that is kept compressed; the short label of a figure
            translate("MemoryCard", "Compressed"), stats.compressedBytes, VantorTheme::orange()),
        row(  //: memory that programs can have; the short label of a figure
            translate("MemoryCard", "Available"), stats.availableBytes, VantorTheme::green())};
}

MemoryCardView::MemoryCardView(const ProcessInfo& versions, QWidget* parent)
    : DashboardCardView(MemoryCard::of({}).frame(), parent) {
    const DashboardState none;
    const MemoryCard card = MemoryCard::of(none);
    figures_ = makeChild<GaugeAndRowsView>(this, card.gauge(), card.rows());
    body().addWidget(figures_);
    history_ = makeChild<SparklineView>(this,
                                        //: of the chart, for screen readers
                                        translate("MemoryCard", "Memory history"),
                                        Sparkline{{}, VantorTheme::pink(), std::pair{0.0, 1.0}},
                                        memoryCardChartHeight);
    body().addWidget(history_);
    processes_ = makeChild<ProcessMiniListView>(
        this,
        ProcessMiniList{//: the processes that use most memory
                        translate("MemoryCard", "Top Memory Processes"),
                        {},
                        ProcessMiniList::Metric::memory},
        memoryCardProcessRows, processSymbol(versions));
    processes_->fillHeight();
    body().addWidget(processes_, 1);
}

void MemoryCardView::explain(const FigureMeanings& meanings) {
    constexpr std::size_t wiredRow = 1;
    constexpr std::size_t compressedRow = 2;
    figures_->row(wiredRow).explain(wordedForPeople(meanings.wired));
    figures_->row(compressedRow).explain(wordedForPeople(meanings.compressed));
}

void MemoryCardView::show(const MemoryCard& card) {
    if (card.revision != revision_) {
        showCard(card.frame());
        figures_->show(card.gauge(), card.rows());
        history_->show(card.history, card.gauge().title, card.historyTimes);
        revision_ = card.revision;
    }
    if (card.processRevision != processRevision_) {
        processes_->show(card.processes);
        processRevision_ = card.processRevision;
    }
}

}  // namespace vantor

#include "ui/cards/gpu_card.h"

#include <limits>

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

constexpr int gpuCardChartHeight = 62;
constexpr int gpuCardCardSpacing = 16;
constexpr int deviceSpacing = 10;

}  // namespace

GPUCard GPUCard::of(const DashboardState& state) {
    return {state.snapshot.gpus, state.histories.gpu, state.revisions.gpu, !state.answered.gpus,
            state.histories.times.gpu};
}

DashboardCard GPUCard::frame() const {
    std::optional<QString> subtitle;
    if (isWaiting) {
        subtitle = translate("GPUCard", "Waiting for graphics data");
    } else if (!gpus.empty()) {
        subtitle = shownText(gpus.front().name);
    }
    return {//: the title of the card
            translate("GPUCard", "Graphics"), subtitle, QStringLiteral("display"),
            VantorTheme::purple()};
}

RingGauge GPUCard::gauge() const {
    const double load =
        gpus.empty() ? std::numeric_limits<double>::quiet_NaN()
                     : gpus.front().utilization.value_or(std::numeric_limits<double>::quiet_NaN());
    return {load, Formatters::percent(load, 0),
            //: under the share of the graphics device that is busy
            translate("GPUCard", "GPU Load"), VantorTheme::purple(),
            GaugeAndRowsView::gaugeLineWidth};
}

std::array<MetricRow, 3> GPUCard::rows() const {
    const bool isKnown = !gpus.empty();
    const QString absent = isKnown ? CardTexts::notPublished() : CardTexts::unknownYet();
    const GPUStats none;
    const GPUStats& gpu = isKnown ? gpus.front() : none;
    using CardTexts::row;
    return {row(translate("GPUCard", "Temperature"), CardTexts::temperature(gpu.temperatureCelsius),
                absent, VantorTheme::orange()),
            // Without a dot its label would not be aligned with the other two.
            row(  //: memory of the graphics device
                translate("GPUCard", "VRAM Used"), CardTexts::bytes(gpu.vramUsedBytes), absent,
                VantorTheme::purple()),
            row(  //: memory of the graphics device
                translate("GPUCard", "VRAM Total"), CardTexts::bytes(gpu.vramTotalBytes), absent,
                VantorTheme::blue())};
}

EmptyState GPUCard::emptyState(const PlatformWords& platform) {
    return {wordedForPeople(platform.noGraphicsTitle),
            QStringLiteral("display.trianglebadge.exclamationmark"),
            wordedForPeople(platform.noGraphicsMessage)};
}

GPUCardView::GPUCardView(const PlatformWords& platform, QWidget* parent)
    : DashboardCardView(GPUCard{}.frame(), parent), words_(platform) {
    const GPUCard card;
    emptyState_ = makeChild<EmptyStateView>(this, GPUCard::emptyState(platform));
    // Before the first reading it is not known that there is no device.
    emptyState_->setVisible(false);
    body().addWidget(emptyState_);

    filled_ = makeChild<QWidget>(this);
    auto* column = makeLayout<QVBoxLayout>(filled_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(gpuCardCardSpacing);
    figures_ = makeChild<GaugeAndRowsView>(filled_, card.gauge(), card.rows());
    column->addWidget(figures_);
    history_ = makeChild<SparklineView>(filled_,
                                        //: of the chart, for screen readers
                                        translate("GPUCard", "GPU history"),
                                        Sparkline{{}, VantorTheme::purple(), std::pair{0.0, 1.0}},
                                        gpuCardChartHeight);
    column->addWidget(history_);
    list_ = makeInnerLayout<QVBoxLayout>();
    list_->setSpacing(deviceSpacing);
    devicesTitle_ =
        makeChild<TextLineView>(filled_,
                                //: the heading of a list
                                translate("GPUCard", "Graphics Devices"), Typography::caption,
                                QFont::Normal, TextLineView::Tone::secondary);
    list_->addWidget(devicesTitle_);
    column->addLayout(list_);
    body().addWidget(filled_);
    body().addStretch();
}

void GPUCardView::show(const GPUCard& card) {
    if (card.revision == revision_ && card.isWaiting == isWaiting_) return;
    revision_ = card.revision;
    isWaiting_ = card.isWaiting;
    showCard(card.frame());
    header().setToolTip(card.gpus.empty() ? QString()
                                          : toolTipText(shownText(card.gpus.front().name)));
    emptyState_->setVisible(card.isEmpty());
    filled_->setVisible(!card.isEmpty());
    figures_->show(card.gauge(), card.rows());
    history_->show(card.history, card.gauge().title, card.historyTimes);
    showDevices(card.gpus);
}

void GPUCardView::showDevices(std::span<const GPUStats> gpus) {
    while (devices_.size() < gpus.size()) {
        devices_.push_back(makeChild<GraphicsDeviceView>(filled_));
        list_->addWidget(devices_.back());
    }
    for (std::size_t i = 0; i < devices_.size(); ++i) {
        if (i < gpus.size()) devices_[i]->show(GraphicsDeviceBlock::of(gpus[i], words_));
        devices_[i]->setVisible(i < gpus.size());
    }
    count_ = gpus.size();
}

}  // namespace vantor

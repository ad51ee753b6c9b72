#include "ui/cards/system_card.h"

#include <QEvent>
#include <QVBoxLayout>

#include <cmath>

#include "ui/cards/card_texts.h"
#include "ui/components/make_child.h"
#include "ui/components/tool_tip_text.h"
#include "ui/core_words.h"
#include "ui/formatters.h"
#include "ui/shown_text.h"
#include "ui/theme.h"
#include "ui/translate.h"

namespace vantor {

namespace {

constexpr int systemCardRowSpacing = 10;
constexpr std::size_t thermalRow = 4;
constexpr std::size_t lowPowerRow = 5;

}  // namespace

SystemCard SystemCard::of(const DashboardState& state) {
    return {state.snapshot.system, state.snapshot.power, state.revisions.system};
}

DashboardCard SystemCard::frame() const {
    const QString subtitle = isWaiting() ? translate("SystemCard", "Waiting for system data")
                                         : wordedForPeople(stats.hardwareModel);
    return {//: the title of the card: the whole machine
            translate("SystemCard", "System"), subtitle, QStringLiteral("desktopcomputer"),
            VantorTheme::orange()};
}

QColor SystemCard::thermalColor(const std::string& state, ColorScheme scheme) {
    if (state == "Nominal") return VantorTheme::green();
    if (state == "Fair") return VantorTheme::orange();
    if (state == "Serious" || state == "Critical") return VantorTheme::red();
    return VantorTheme::secondaryLabel(scheme);
}

std::array<MetricRow, 6> SystemCard::rows() const {
    const auto row = [&](const QString& label, const std::optional<QString>& value) {
        return CardTexts::row(label, isWaiting() ? std::nullopt : value,
                              isWaiting() ? CardTexts::unknownYet()
                                          : /*: a text that the machine does not tell */
                                  translate("SystemCard", "Unknown"),
                              VantorTheme::blue());
    };
    const auto known = [](const std::string& value) {
        return value.empty() ? std::nullopt : std::optional(wordedForPeople(value));
    };
    std::optional<QString> uptime;
    if (stats.uptimeSeconds >= 0 && std::isfinite(stats.uptimeSeconds))
        uptime = Formatters::uptime(stats.uptimeSeconds);
    // The record's own word where nobody tells the state.
    const bool hasState = stats.thermalState != "Unknown";
    return {row(translate("SystemCard", "Operating System"), known(stats.operatingSystem)),
            row(translate("SystemCard", "Kernel Build"), known(stats.kernelVersion)),
            row(
                //: of the processor
                translate("SystemCard", "Architecture"), known(stats.architecture)),
            row(
                //: the time since the machine was started
                translate("SystemCard", "Uptime"), uptime),
            row(
                //: how hot the machine is, in words
                translate("SystemCard", "Thermal State"),
                hasState ? known(stats.thermalState) : std::nullopt),
            row(translate("SystemCard", "Low Power Mode"),
                stats.lowPowerModeEnabled
                    ? /*: the low power mode */ translate("SystemCard", "Enabled")
                    : /*: the low power mode */ translate("SystemCard", "Disabled"))};
}

SystemCardView::SystemCardView(const ProcessInfo& versions, QWidget* parent)
    : DashboardCardView(SystemCard::of(DashboardState{}).frame(), parent), versions_(versions) {
    const DashboardState none;
    const auto rows = SystemCard::of(none).rows();
    auto* column = makeInnerLayout<QVBoxLayout>();
    column->setSpacing(systemCardRowSpacing);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows_[i] = makeChild<MetricRowView>(this, rows[i]);
        column->addWidget(rows_[i]);
    }
    body().addLayout(column);
    power_ = makeChild<PowerView>(this);
    power_->setVisible(false);
    body().addWidget(power_);
    body().addStretch();
    colorThermalState();
}

void SystemCardView::explain(const FigureMeanings& meanings) {
    rows_[thermalRow]->explain(wordedForPeople(meanings.thermalState));
    rows_[lowPowerRow]->explain(wordedForPeople(meanings.lowPowerMode));
}

void SystemCardView::show(const SystemCard& card) {
    if (card.revision == revision_) return;
    revision_ = card.revision;
    showCard(card.frame());
    header().setToolTip(toolTipText(shownText(card.stats.hardwareModel)));
    thermalState_ = card.stats.thermalState;
    const auto rows = card.rows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i != thermalRow) rows_[i]->show(rows[i]);
    }
    MetricRow thermal = rows[thermalRow];
    thermal.color = SystemCard::thermalColor(thermalState_, colorScheme(*this));
    rows_[thermalRow]->show(thermal);
    if (card.power) power_->show(PowerBlock::of(*card.power, versions_));
    power_->setVisible(card.power.has_value());
}

/// The colour of an unknown state is the scheme's own.
void SystemCardView::colorThermalState() {
    MetricRow row = rows_[thermalRow]->row();
    row.color = SystemCard::thermalColor(thermalState_, colorScheme(*this));
    rows_[thermalRow]->show(row);
}

void SystemCardView::changeEvent(QEvent* event) {
    DashboardCardView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) colorThermalState();
}

}  // namespace vantor

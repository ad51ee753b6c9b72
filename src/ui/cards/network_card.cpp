#include "ui/cards/network_card.h"

#include <QHBoxLayout>
#include <QStringList>
#include <QVBoxLayout>

#include "ui/cards/card_texts.h"
#include "ui/components/make_child.h"
#include "ui/components/tool_tip_text.h"
#include "ui/formatters.h"
#include "ui/shown_text.h"
#include "ui/theme.h"

namespace vantor {

namespace {

constexpr int networkCardTileSpacing = 12;
constexpr int networkCardRowSpacing = 10;
constexpr std::size_t interfacesRow = 3;
// A container host has hundreds; a tool tip must not cover the screen.
constexpr std::size_t maxHelpLines = 16;

LabeledSparkline sparkline(const QString& label, const QColor& color) {
    return {label, CardTexts::unknownYet(), {}, color};
}

}  // namespace

NetworkCard NetworkCard::of(const DashboardState& state) {
    return {state.snapshot.network, state.histories.download, state.histories.upload,
            state.revisions.network, state.histories.times.network};
}

DashboardCard NetworkCard::frame() const {
    QString subtitle = QStringLiteral("Waiting for network data");
    if (!isWaiting()) {
        subtitle = stats.primaryInterfaceName ? QStringLiteral("Active interface: ") +
                                                    shownText(*stats.primaryInterfaceName)
                                              : QStringLiteral("No active interface");
    }
    return {QStringLiteral("Network"), subtitle, QStringLiteral("network"), VantorTheme::green()};
}

QString NetworkCard::downloadText() const {
    return isWaiting() ? CardTexts::unknownYet() : Formatters::rate(stats.downloadBytesPerSecond);
}

QString NetworkCard::uploadText() const {
    return isWaiting() ? CardTexts::unknownYet() : Formatters::rate(stats.uploadBytesPerSecond);
}

SpeedTile NetworkCard::downloadTile() const {
    return {QStringLiteral("Download"), downloadText(), QStringLiteral("arrow.down"),
            VantorTheme::green(), isWaiting()};
}

SpeedTile NetworkCard::uploadTile() const {
    return {QStringLiteral("Upload"), uploadText(), QStringLiteral("arrow.up"),
            VantorTheme::orange(), isWaiting()};
}

std::array<MetricRow, 4> NetworkCard::rows() const {
    const auto row = [&](const QString& label, const std::string& text, const QString& absence) {
        return CardTexts::row(label, isWaiting() ? std::nullopt : CardTexts::known(text),
                              isWaiting() ? CardTexts::unknownYet() : absence, std::nullopt);
    };
    const QString unassigned = QStringLiteral("Not assigned");
    return {
        row(QStringLiteral("Hostname"), stats.hostname, QStringLiteral("Unknown")),
        row(QStringLiteral("IPv4"), stats.primaryIPv4Address.value_or(std::string{}), unassigned),
        row(QStringLiteral("IPv6"), stats.primaryIPv6Address.value_or(std::string{}), unassigned),
        row(QStringLiteral("Interfaces"), std::to_string(stats.interfaces.size()), {})};
}

QString NetworkCard::interfacesHelp() const {
    QStringList lines;
    for (const NetworkInterfaceStats& interface : stats.interfaces) {
        if (static_cast<std::size_t>(lines.size()) == maxHelpLines) {
            lines << QStringLiteral("…");
            break;
        }
        QStringList words{isolatedText(shownText(interface.name))};
        for (const auto& address : {interface.ipv4Address, interface.ipv6Address}) {
            if (address) words << shownText(*address);
        }
        lines << words.join(QStringLiteral("  "));
    }
    return lines.join(u'\n');
}

NetworkCardView::NetworkCardView(QWidget* parent)
    : DashboardCardView(NetworkCard::of(DashboardState{}).frame(), parent) {
    const DashboardState none;
    const NetworkCard card = NetworkCard::of(none);
    auto* tiles = makeInnerLayout<QHBoxLayout>();
    tiles->setSpacing(networkCardTileSpacing);
    downloadTile_ = makeChild<SpeedTileView>(this, card.downloadTile());
    uploadTile_ = makeChild<SpeedTileView>(this, card.uploadTile());
    tiles->addWidget(downloadTile_, 1);
    tiles->addWidget(uploadTile_, 1);
    body().addLayout(tiles);
    downloadHistory_ = makeChild<LabeledSparklineView>(
        this, sparkline(QStringLiteral("Download"), VantorTheme::green()));
    uploadHistory_ = makeChild<LabeledSparklineView>(
        this, sparkline(QStringLiteral("Upload"), VantorTheme::orange()));
    body().addWidget(downloadHistory_);
    body().addWidget(uploadHistory_);
    auto* column = makeInnerLayout<QVBoxLayout>();
    column->setSpacing(networkCardRowSpacing);
    const auto rows = card.rows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows_[i] = makeChild<MetricRowView>(this, rows[i]);
        column->addWidget(rows_[i]);
    }
    body().addLayout(column);
    body().addStretch();
}

void NetworkCardView::show(const NetworkCard& card) {
    if (card.revision == revision_) return;
    revision_ = card.revision;
    showCard(card.frame());
    downloadTile_->show(card.downloadTile());
    uploadTile_->show(card.uploadTile());
    downloadHistory_->show(card.downloadText(), card.downloadHistory, card.historyTimes);
    uploadHistory_->show(card.uploadText(), card.uploadHistory, card.historyTimes);
    const auto rows = card.rows();
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows_[i]->show(rows[i]);
    rows_[interfacesRow]->setToolTip(toolTipText(card.interfacesHelp()));
}

}  // namespace vantor

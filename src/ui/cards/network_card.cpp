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
#include "ui/translate.h"

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
    QString subtitle = translate("NetworkCard", "Waiting for network data");
    if (!isWaiting()) {
        subtitle = stats.primaryInterfaceName
                       ? /*: %1 is the name of a network interface */ translate(
                             "NetworkCard", "Active interface: %1")
                             .arg(isolatedText(shownText(*stats.primaryInterfaceName)))
                       : translate("NetworkCard", "No active interface");
    }
    return {//: the title of the card
            translate("NetworkCard", "Network"), subtitle, QStringLiteral("network"),
            VantorTheme::green()};
}

QString NetworkCard::downloadText() const {
    return isWaiting() ? CardTexts::unknownYet() : Formatters::rate(stats.downloadBytesPerSecond);
}

QString NetworkCard::uploadText() const {
    return isWaiting() ? CardTexts::unknownYet() : Formatters::rate(stats.uploadBytesPerSecond);
}

SpeedTile NetworkCard::downloadTile() const {
    return {//: the speed at which data comes in
            translate("NetworkCard", "Download"), downloadText(), QStringLiteral("arrow.down"),
            VantorTheme::green(), isWaiting()};
}

SpeedTile NetworkCard::uploadTile() const {
    return {//: the speed at which data goes out
            translate("NetworkCard", "Upload"), uploadText(), QStringLiteral("arrow.up"),
            VantorTheme::orange(), isWaiting()};
}

std::array<MetricRow, 4> NetworkCard::rows() const {
    const auto row = [&](const QString& label, const std::string& text, const QString& absence) {
        return CardTexts::row(label, isWaiting() ? std::nullopt : CardTexts::known(text),
                              isWaiting() ? CardTexts::unknownYet() : absence, std::nullopt);
    };
    const QString unassigned =
        //: no address
        translate("NetworkCard", "Not assigned");
    return {row(translate("NetworkCard", "Hostname"), stats.hostname,
                //: a host without a name
                translate("NetworkCard", "Unknown")),
            row(translate("NetworkCard", "IPv4"), stats.primaryIPv4Address.value_or(std::string{}),
                unassigned),
            row(translate("NetworkCard", "IPv6"), stats.primaryIPv6Address.value_or(std::string{}),
                unassigned),
            row(  //: the number of network interfaces; the short label of a figure
                translate("NetworkCard", "Interfaces"),
                Formatters::count(static_cast<std::int64_t>(stats.interfaces.size())).toStdString(),
                {})};
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
        this, sparkline(
                  //: the speed at which data comes in
                  translate("NetworkCard", "Download"), VantorTheme::green()));
    uploadHistory_ = makeChild<LabeledSparklineView>(
        this, sparkline(
                  //: the speed at which data goes out
                  translate("NetworkCard", "Upload"), VantorTheme::orange()));
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

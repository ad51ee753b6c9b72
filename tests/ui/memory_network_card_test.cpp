#include <gtest/gtest.h>

#include "platform/simulated/simulated_machine.h"
#include "ui/card_samples.h"
#include "ui/cards/memory_card.h"
#include "ui/cards/network_card.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::memory_network_card_test {
namespace {

void expectRow(const MetricRow& row, const char* label, const char* value,
               const std::optional<QColor>& color) {
    EXPECT_EQ(utf8(row.label), label);
    EXPECT_EQ(utf8(row.value), value) << label;
    EXPECT_EQ(row.color, color) << label;
}

TEST(MemoryCard, SaysWhatIsInstalledAndInUse) {
    const DashboardState state = stateWithEverything();
    const MemoryCard card = MemoryCard::of(state);
    EXPECT_EQ(utf8(card.frame().title), "Memory");
    EXPECT_EQ(utf8(card.frame().icon), "memorychip");
    EXPECT_EQ(card.frame().accent, VantorTheme::pink());
    EXPECT_EQ(utf8(card.frame().subtitle.value()), "16 GB installed");
    EXPECT_DOUBLE_EQ(card.gauge().value, 0.4375);
    EXPECT_EQ(utf8(card.gauge().title), "44%");
    EXPECT_EQ(utf8(card.gauge().detail), "In Use");
    EXPECT_EQ(card.gauge().accent, VantorTheme::pink());
}

TEST(MemoryCard, RowsStandInTheirOrderWithTheirColours) {
    const DashboardState state = stateWithEverything();
    const auto rows = MemoryCard::of(state).rows();
    expectRow(rows[0], "Active", "4 GB", VantorTheme::blue());
    expectRow(rows[1], "Wired", "2 GB", VantorTheme::pink());
    expectRow(rows[2], "Compressed", "1 GB", VantorTheme::orange());
    expectRow(rows[3], "Available", "9 GB", VantorTheme::green());
}

TEST(MemoryCard, MoreInUseThanThereIsFillsTheRing) {
    DashboardState state = stateWithEverything();
    state.snapshot.memory.usedBytes = 20 * gibibyte;
    EXPECT_DOUBLE_EQ(MemoryCard::of(state).gauge().value, 1);
    state.snapshot.memory.totalBytes = 0;
    EXPECT_DOUBLE_EQ(MemoryCard::of(state).gauge().value, 0);
}

TEST(MemoryCard, SaysNoNumberBeforeTheFirstReading) {
    const DashboardState none;
    const MemoryCard card = MemoryCard::of(none);
    EXPECT_EQ(utf8(card.frame().subtitle.value()), "Waiting for memory data");
    EXPECT_EQ(utf8(card.gauge().title), "—");
    for (const MetricRow& row : card.rows())
        EXPECT_EQ(utf8(row.value), "—");
}

TEST(MemoryCard, FollowsItsOwnRevisionsOnly) {
    const auto machine = SimulatedMachine::laptop();
    MemoryCardView view(machine->processInfo());
    DashboardState state = stateWithEverything();
    view.show(MemoryCard::of(state));
    EXPECT_EQ(view.processes().rowCount(), 5u);
    EXPECT_EQ(utf8(view.processes().accessibleLabel()), "Top Memory Processes");
    state.snapshot.memory.activeBytes = 5 * gibibyte;
    state.processesByMemory.clear();
    view.show(MemoryCard::of(state));
    EXPECT_EQ(utf8(view.figures().row(0).row().value), "4 GB") << "the revision is the same";
    EXPECT_EQ(view.processes().rowCount(), 5u);
    ++state.revisions.memory;
    view.show(MemoryCard::of(state));
    EXPECT_EQ(utf8(view.figures().row(0).row().value), "5 GB");
    EXPECT_EQ(view.processes().rowCount(), 5u);
    ++state.revisions.processes;
    view.show(MemoryCard::of(state));
    EXPECT_EQ(view.processes().rowCount(), 0u);
}

TEST(NetworkCard, SubtitleNamesTheActiveInterface) {
    DashboardState state = stateWithEverything();
    EXPECT_EQ(utf8(NetworkCard::of(state).frame().subtitle.value()), "Active interface: en0");
    state.snapshot.network.primaryInterfaceName.reset();
    EXPECT_EQ(utf8(NetworkCard::of(state).frame().subtitle.value()), "No active interface");
    EXPECT_EQ(utf8(NetworkCard::of(state).frame().title), "Network");
    EXPECT_EQ(utf8(NetworkCard::of(state).frame().icon), "network");
    EXPECT_EQ(NetworkCard::of(state).frame().accent, VantorTheme::green());
}

TEST(NetworkCard, TilesShowBothSpeeds) {
    const DashboardState state = stateWithEverything();
    const NetworkCard card = NetworkCard::of(state);
    EXPECT_EQ(card.downloadTile(),
              (SpeedTile{QStringLiteral("Download"), QStringLiteral("1.25 MB/s"),
                         QStringLiteral("arrow.down"), VantorTheme::green()}));
    EXPECT_EQ(card.uploadTile(), (SpeedTile{QStringLiteral("Upload"), QStringLiteral("64 KB/s"),
                                            QStringLiteral("arrow.up"), VantorTheme::orange()}));
}

TEST(NetworkCard, RowsSayWhatIsNotAssigned) {
    DashboardState state = stateWithEverything();
    auto rows = NetworkCard::of(state).rows();
    expectRow(rows[0], "Hostname", "simbook.local", std::nullopt);
    expectRow(rows[1], "IPv4", "192.168.1.20", std::nullopt);
    expectRow(rows[2], "IPv6", "Not assigned", std::nullopt);
    expectRow(rows[3], "Interfaces", "2", std::nullopt);
    state.snapshot.network.primaryIPv4Address.reset();
    rows = NetworkCard::of(state).rows();
    expectRow(rows[1], "IPv4", "Not assigned", std::nullopt);
}

TEST(NetworkCard, SaysNoNumberBeforeTheFirstReading) {
    const DashboardState none;
    const NetworkCard card = NetworkCard::of(none);
    EXPECT_EQ(utf8(card.frame().subtitle.value()), "Waiting for network data");
    EXPECT_EQ(utf8(card.downloadTile().value), "—");
    EXPECT_EQ(utf8(card.uploadTile().value), "—");
    for (const MetricRow& row : card.rows())
        EXPECT_EQ(utf8(row.value), "—");
}

TEST(NetworkCard, HelpNamesTheInterfacesAndStopsSomewhere) {
    DashboardState state = stateWithEverything();
    EXPECT_EQ(utf8(NetworkCard::of(state).interfacesHelp()), "en0  192.168.1.20\nutun4");
    state.snapshot.network.interfaces.resize(300);
    EXPECT_EQ(NetworkCard::of(state).interfacesHelp().count(u'\n'), 16);
}

TEST(NetworkCard, ViewShowsChartsUnderTheTiles) {
    NetworkCardView view;
    DashboardState state = stateWithEverything();
    view.show(NetworkCard::of(state));
    EXPECT_EQ(utf8(view.downloadHistory().sparkline().label), "Download");
    EXPECT_EQ(utf8(view.downloadHistory().sparkline().value), "1.25 MB/s");
    EXPECT_EQ(view.downloadHistory().sparkline().values, state.histories.download);
    EXPECT_EQ(view.downloadHistory().sparkline().color, VantorTheme::green());
    EXPECT_EQ(view.uploadHistory().sparkline().values, state.histories.upload);
    EXPECT_EQ(view.uploadHistory().sparkline().color, VantorTheme::orange());
    state.snapshot.network.downloadBytesPerSecond = 0;
    view.show(NetworkCard::of(state));
    EXPECT_EQ(utf8(view.downloadTile().tile().value), "1.25 MB/s") << "the revision is the same";
    ++state.revisions.network;
    view.show(NetworkCard::of(state));
    EXPECT_EQ(utf8(view.downloadTile().tile().value), "0 B/s");
}

}  // namespace
}  // namespace vantor::memory_network_card_test

#include <gtest/gtest.h>

#include "platform/linux/linux_machine.h"
#include "platform/simulated/simulated_machine.h"
#include "ui/card_samples.h"
#include "ui/cards/gpu_card.h"
#include "ui/cards/storage_card.h"
#include "ui/rendering.h"

namespace vantor::gpu_storage_card_test {
namespace {

const PlatformWords& macWords() {
    static const auto machine = SimulatedMachine::laptop();
    return machine->words();
}

TEST(GPUCard, GaugeAndRowsAreOfTheFirstDevice) {
    DashboardState state = stateWithEverything();
    state.snapshot.gpus.push_back(graphics("Second"));
    state.snapshot.gpus[1].utilization = 0.9;
    const GPUCard card = GPUCard::of(state);
    EXPECT_EQ(utf8(card.frame().title), "Graphics");
    EXPECT_EQ(utf8(card.frame().icon), "display");
    EXPECT_EQ(card.frame().accent, VantorTheme::purple());
    EXPECT_DOUBLE_EQ(card.gauge().value, 0.376);
    EXPECT_EQ(utf8(card.gauge().title), "38%");
    EXPECT_EQ(utf8(card.gauge().detail), "GPU Load");
    EXPECT_EQ(card.gauge().accent, VantorTheme::purple());
    const auto rows = card.rows();
    EXPECT_EQ(utf8(rows[0].label + u'=' + rows[0].value), "Temperature=62 °C");
    EXPECT_EQ(rows[0].color, VantorTheme::orange());
    EXPECT_EQ(utf8(rows[1].label + u'=' + rows[1].value), "VRAM Used=1.5 GB");
    EXPECT_EQ(utf8(rows[2].label + u'=' + rows[2].value), "VRAM Total=8 GB");
    EXPECT_EQ(rows[2].color, VantorTheme::blue());
}

TEST(GPUCard, WhatIsNotPublishedIsSaidInWords) {
    DashboardState state = stateWithEverything();
    GPUStats bare;
    bare.id = bare.name = "Asleep";
    state.snapshot.gpus = {bare};
    const GPUCard card = GPUCard::of(state);
    EXPECT_EQ(utf8(card.gauge().title), "—");
    for (const MetricRow& row : card.rows())
        EXPECT_EQ(utf8(row.value), "Not published");
    EXPECT_EQ(utf8(GraphicsDeviceBlock::of(bare, macWords()).utilization), "Not published");
}

TEST(GPUCard, DevicesHaveNameKindLoadAndWorkingSet) {
    GPUStats gpu = graphics("Fine Card");
    auto block = GraphicsDeviceBlock::of(gpu, macWords());
    EXPECT_EQ(utf8(block.name), "Fine Card");
    EXPECT_EQ(utf8(block.kind), "Discrete graphics");
    EXPECT_EQ(utf8(block.utilization), "37.6%");
    EXPECT_FALSE(block.workingSet);
    EXPECT_TRUE(block.note.isEmpty());
    gpu.isUnifiedMemory = true;
    gpu.recommendedWorkingSetBytes = 12 * gibibyte;
    block = GraphicsDeviceBlock::of(gpu, macWords());
    EXPECT_EQ(utf8(block.kind), "Unified memory architecture");
    EXPECT_EQ(utf8(block.workingSet.value()), "12 GB");
    GraphicsDeviceView view;
    view.show(block);
    EXPECT_EQ(utf8(view.accessibleValueText()),
              "Unified memory architecture, 37.6%, Recommended Working Set 12 GB");
}

TEST(GPUCard, ALoadOfOnesOwnProcessesIsCalledSo) {
    const LinuxMachine machine;
    const auto block = GraphicsDeviceBlock::of(graphics("Intel UHD Graphics 620"), machine.words());
    EXPECT_EQ(utf8(block.note), "Load of your own processes");
    EXPECT_TRUE(GraphicsDeviceBlock::of(graphics("AMD Radeon"), machine.words()).note.isEmpty());
    GPUStats unknown = graphics("Intel UHD Graphics 620");
    unknown.utilization.reset();
    EXPECT_TRUE(GraphicsDeviceBlock::of(unknown, machine.words()).note.isEmpty());
}

TEST(GPUCard, WaitsForTheFirstResultWithoutSayingThatThereIsNoDevice) {
    const DashboardState none;
    EXPECT_EQ(utf8(GPUCard::of(none).frame().subtitle.value()), "Waiting for graphics data");
    GPUCardView view(macWords());
    EXPECT_TRUE(view.emptyState().isHidden());
    EXPECT_EQ(utf8(view.figures().gauge().gauge().title), "—");
}

TEST(GPUCard, WithoutADeviceItSaysSo) {
    GPUCardView view(macWords());
    DashboardState state;
    state.answered.gpus = true;  // an empty list changes no revision
    view.show(GPUCard::of(state));
    EXPECT_FALSE(view.emptyState().isHidden());
    EXPECT_TRUE(view.figures().parentWidget()->isHidden());
    EXPECT_EQ(view.emptyState().state(),
              (EmptyState{QStringLiteral("No Metal Device"),
                          QStringLiteral("display.trianglebadge.exclamationmark"),
                          QStringLiteral("The active graphics driver did not expose a Metal "
                                         "device.")}));
    EXPECT_FALSE(GPUCard::of(state).frame().subtitle);
    const LinuxMachine machine;
    EXPECT_EQ(GPUCard::emptyState(machine.words()),
              (EmptyState{QStringLiteral("No Graphics Device"),
                          QStringLiteral("display.trianglebadge.exclamationmark"),
                          QStringLiteral("The active graphics driver did not expose a graphics "
                                         "device.")}));
}

TEST(GPUCard, DevicesComeAndGo) {
    GPUCardView view(macWords());
    DashboardState state = stateWithEverything();
    state.snapshot.gpus.push_back(graphics("Second"));
    view.show(GPUCard::of(state));
    EXPECT_EQ(view.deviceCount(), 2u);
    EXPECT_EQ(utf8(view.device(1).block().name), "Second");
    state.snapshot.gpus.clear();
    ++state.revisions.gpu;
    view.show(GPUCard::of(state));
    EXPECT_EQ(view.deviceCount(), 0u);
    EXPECT_FALSE(view.emptyState().isHidden());
}

TEST(StorageCard, SubtitleCountsTheVolumes) {
    DashboardState state = stateWithEverything();
    EXPECT_EQ(utf8(StorageCard::of(state).frame().subtitle.value()), "1 mounted volume");
    state.snapshot.volumes.push_back(volume("Two", 2, 1));
    EXPECT_EQ(utf8(StorageCard::of(state).frame().subtitle.value()), "2 mounted volumes");
    state.snapshot.volumes.clear();
    EXPECT_EQ(utf8(StorageCard::of(state).frame().subtitle.value()), "0 mounted volumes");
    EXPECT_EQ(utf8(StorageCard::of(state).frame().title), "Storage");
    EXPECT_EQ(utf8(StorageCard::of(state).frame().icon), "internaldrive");
    EXPECT_EQ(StorageCard::of(state).frame().accent, VantorTheme::blue());
}

TEST(StorageCard, ABlockSaysWhatIsUsedAndFree) {
    VolumeStats stats = volume("Macintosh HD", 400 * gibibyte, 100 * gibibyte);
    VolumeBlock block = VolumeBlock::of(stats);
    EXPECT_EQ(utf8(block.symbol), "internaldrive");
    EXPECT_EQ(utf8(block.name), "Macintosh HD");
    EXPECT_DOUBLE_EQ(block.usedFraction, 0.75);
    EXPECT_EQ(block.accent, VantorTheme::blue());
    EXPECT_EQ(utf8(block.usedText), "300 GB used");
    EXPECT_EQ(utf8(block.freeText), "100 GB free");
    EXPECT_EQ(utf8(block.help), "/Volumes/Macintosh HD");
    stats.isInternal = false;
    stats.isReadOnly = true;
    block = VolumeBlock::of(stats);
    EXPECT_EQ(utf8(block.symbol), "externaldrive");
    EXPECT_EQ(utf8(block.help), "/Volumes/Macintosh HD (read only)");
}

TEST(StorageCard, AVolumeAtExactlyNinetyPercentIsRed) {
    EXPECT_EQ(VolumeBlock::of(volume("v", 1000, 100)).accent, VantorTheme::red());
    EXPECT_EQ(VolumeBlock::of(volume("v", 1000, 101)).accent, VantorTheme::blue());
    EXPECT_EQ(VolumeBlock::of(volume("v", 1000, 0)).accent, VantorTheme::red());
}

TEST(StorageCard, AnImpossibleVolumeShowsNoWrappedNumber) {
    const VolumeBlock block = VolumeBlock::of(volume("v", 1024, 4096));
    EXPECT_DOUBLE_EQ(block.usedFraction, 0);
    EXPECT_EQ(utf8(block.usedText), "0 bytes used");
    EXPECT_EQ(VolumeBlock::of(volume("v", 0, 0)).usedFraction, 0);
}

TEST(StorageCard, ShowsTheFirstSevenVolumes) {
    StorageCardView view(macWords());
    DashboardState state = stateWithEverything();
    state.snapshot.volumes.clear();
    for (int i = 0; i < 9; ++i)
        state.snapshot.volumes.push_back(volume("Volume " + std::to_string(i), 10, 5));
    view.show(StorageCard::of(state));
    EXPECT_EQ(view.volumeCount(), 7u);
    EXPECT_EQ(utf8(view.volume(6).block().name), "Volume 6");
    EXPECT_EQ(utf8(view.header().card().subtitle.value()), "9 mounted volumes");
    state.snapshot.volumes.resize(1);
    ++state.revisions.storage;
    view.show(StorageCard::of(state));
    EXPECT_EQ(view.volumeCount(), 1u);
    EXPECT_TRUE(view.volume(1).isHidden());
}

TEST(StorageCard, WithoutVolumesItSaysSoButNotBeforeItKnows) {
    StorageCardView view(macWords());
    EXPECT_TRUE(view.emptyState().isHidden());
    const DashboardState none;
    EXPECT_EQ(utf8(StorageCard::of(none).frame().subtitle.value()), "Waiting for storage data");
    DashboardState state;
    state.answered.volumes = true;
    view.show(StorageCard::of(state));
    EXPECT_FALSE(view.emptyState().isHidden());
    EXPECT_EQ(view.emptyState().state(),
              (EmptyState{QStringLiteral("No Volumes"),
                          QStringLiteral("externaldrive.badge.questionmark"),
                          QStringLiteral("No browsable mounted volume was returned by macOS.")}));
    const LinuxMachine machine;
    EXPECT_EQ(utf8(StorageCard::emptyState(machine.words()).message),
              "No browsable mounted volume was returned by Linux.");
}

}  // namespace
}  // namespace vantor::gpu_storage_card_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>

#include "support/fake_graphics.h"
#include "support/opened_files.h"

namespace vantor::sleeping_graphics_card_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SleepingGraphicsCard : public testing::Test {
  protected:
    static constexpr const char* dedicated = "0000:01:00.0";

    SleepingGraphicsCard() {
        graphics.card(1, dedicated, "1002:73bf", "amdgpu",
                      {{"gpu_busy_percent", "50"},
                       {"mem_info_vram_used", "100"},
                       {"mem_info_vram_total", "1000"},
                       {"revision", "0xc1"},
                       {"boot_vga", "0"},
                       {"power/control", "auto"},
                       {"config", "x"},
                       {"subsystem_vendor", "0x1002"},
                       {"subsystem_device", "0x0e3a"},
                       {"hwmon/hwmon4/name", "amdgpu"},
                       {"hwmon/hwmon4/temp1_input", "45000"},
                       {"hwmon/hwmon4/temp1_label", "edge"},
                       {"drm/card1/card1-DP-1/status", "disconnected"}});
        graphics.node("renderD129", dedicated);
        graphics.card(0, "0000:00:02.0", "8086:5917", "i915", {{"boot_vga", "1"}});
        graphics.pciDevices({"0010 80865917", "0100 100273bf"});
    }

    std::filesystem::path folder() const {
        return graphics.tree.roots().sys / graphics.folder(dedicated);
    }
    void passes(int count) {
        for (int i = 0; i < count; ++i) {
            graphics.devices();
            graphics.graphicsDevices.systemDefaultDevice();
            for (int j = 0; j < 3; ++j) {
                graphics.wind(4);
                graphics.pass();
            }
        }
    }

    FakeGraphics graphics;
};

TEST_F(SleepingGraphicsCard, IsAskedForItsPowerStateAndNothingElse) {
    for (const char* const state :
         {"suspended", "suspending", "resuming", "error", "", "nonsense"}) {
        graphics.power(dedicated, state);
        OpenedFiles opened(folder());
        passes(3);
        EXPECT_THAT(opened.take(), ElementsAre("power/runtime_status")) << state;
    }
}

TEST_F(SleepingGraphicsCard, TheWatcherSeesWhatAnAwakeOneIsAsked) {
    OpenedFiles opened(folder());
    passes(1);
    EXPECT_THAT(opened.take(), testing::IsSupersetOf({"gpu_busy_percent", "vendor", "hwmon",
                                                      "hwmon/hwmon4/temp1_input"}));
}

TEST_F(SleepingGraphicsCard, IsListedByNameWithoutFigures) {
    graphics.power(dedicated, "suspended");
    const auto devices = graphics.devices();
    ASSERT_EQ(devices.size(), 2U);
    EXPECT_EQ(devices[1].name, "AMD 0x73bf");
    EXPECT_EQ(graphics.graphicsDevices.systemDefaultDevice(), 0x10U);
    const auto told = graphics.pass();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[1].model, "AMD 0x73bf");
    EXPECT_THAT(told[1].statistics, IsEmpty());
}

TEST_F(SleepingGraphicsCard, OfAnAmbiguousPlaceIsNamedByItsDriver) {
    graphics.power(dedicated, "suspended");
    graphics.pciDevices({"0100 100273bf", "0100 144da808"});
    EXPECT_EQ(graphics.devices().at(1).name, "amdgpu");
    graphics.tree.removeProc("bus/pci/devices");
    EXPECT_EQ(graphics.devices().at(1).name, "amdgpu");
}

TEST_F(SleepingGraphicsCard, KeepsTheIdentityItWasSeenWith) {
    graphics.tree.usr("share/libdrm/amdgpu.ids",
                      "73BF,\tC1,\tAMD Radeon RX 6800 XT\n"
                      "73BF,\tC0,\tAMD Radeon RX 6900 XT\n");
    graphics.power(dedicated, "suspended");
    EXPECT_EQ(graphics.devices().at(1).name, "AMD 0x73bf");  // the revision is in a file
    graphics.power(dedicated, "active");
    EXPECT_EQ(graphics.devices().at(1).name, "AMD Radeon RX 6800 XT");
    graphics.power(dedicated, "suspended");
    EXPECT_EQ(graphics.devices().at(1).name, "AMD Radeon RX 6800 XT");
    EXPECT_EQ(graphics.devices().at(1).recommendedMaxWorkingSetSize, 1000U);
}

TEST_F(SleepingGraphicsCard, LosesItsFiguresWhenItFallsAsleepAndHasThemAgain) {
    EXPECT_EQ(graphics.pass().at(1).statistics.size(), 4U);
    graphics.power(dedicated, "suspended");
    EXPECT_THAT(graphics.pass().at(1).statistics, IsEmpty());
    graphics.power(dedicated, "active");
    EXPECT_EQ(graphics.pass().at(1).statistics.size(), 4U);
}

std::set<std::string> openBelow(const std::filesystem::path& folder) {
    std::set<std::string> open;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        const auto target = std::filesystem::read_symlink(entry.path(), gone);
        if (gone || !target.native().starts_with(folder.native() + "/")) continue;
        open.insert(target.lexically_relative(folder).native());
    }
    return open;
}

TEST_F(SleepingGraphicsCard, HasNoFileOpenButItsPowerState) {
    graphics.pass();
    EXPECT_GE(openBelow(folder()).size(), 5U);
    graphics.power(dedicated, "suspending");
    graphics.pass();
    EXPECT_THAT(openBelow(folder()), ElementsAre("power/runtime_status"));
}

TEST_F(SleepingGraphicsCard, WhoseClientsAreNotAskedEither) {
    const std::string said =
        "drm-driver:\ti915\ndrm-client-id:\t7\ndrm-pdev:\t0000:00:02.0\ndrm-engine-render:\t5 ns\n";
    graphics.node("renderD128", "0000:00:02.0");
    graphics.client(50, 3, "renderD128", said);
    graphics.power("0000:00:02.0", "active");
    graphics.pass();
    EXPECT_THAT(openBelow(graphics.tree.roots().proc / "50"), ElementsAre("fdinfo/3"));
    graphics.power("0000:00:02.0", "suspended");
    OpenedFiles opened(graphics.tree.roots().proc / "50");
    passes(2);
    EXPECT_THAT(openBelow(graphics.tree.roots().proc / "50"), IsEmpty());
    EXPECT_THAT(opened.take(), IsEmpty());
}

/// Fails as a driver does that is just putting its card to sleep.
class FallingAsleep : public GraphicsLibrary {
  public:
    std::function<void()> fallAsleep;

    bool open() override { return true; }
    Answer ask(const PCIAddress&) override {
        fallAsleep();
        return {};
    }
    void close() override {}
};

TEST(GraphicsCardThatFallsAsleepDuringAPass, HasNoFiguresOfThatPass) {
    constexpr const char* place = "0000:01:00.0";
    const auto library = std::make_shared<FallingAsleep>();
    FakeGraphics graphics(library);
    graphics.card(0, place, "10de:2484", "nvidia", {{"hwmon/hwmon1/temp1_input", "40000"}});
    library->fallAsleep = [] {};
    EXPECT_EQ(graphics.figure("Temperature(C)"), 40);
    library->fallAsleep = [&] { graphics.power(place, "suspending"); };
    EXPECT_THAT(graphics.pass().at(0).statistics, IsEmpty());
    const auto folder = graphics.tree.roots().sys / graphics.folder(place);
    EXPECT_THAT(openBelow(folder), ElementsAre("power/runtime_status"));
}

}  // namespace
}  // namespace vantor::sleeping_graphics_card_test

#include "platform/linux/graphics/nvml_library.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/fake_graphics.h"
#include "support/fake_nvml.h"

namespace vantor::nvml_library_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr int notSupported = 3;
constexpr int gpuIsLost = 15;
constexpr int unknown = 999;

/// One of the made-up libraries, as the tests see it.
class LoadedFake {
  public:
    explicit LoadedFake(const char* file) : library_(::dlopen(file, RTLD_LAZY | RTLD_LOCAL)) {
        if (!library_) return;
        const auto hand = reinterpret_cast<FakeNVML* (*)()>(::dlsym(library_, "fakeNVML"));
        if (hand) state_ = hand();
        if (state_) *state_ = {};
    }
    LoadedFake(const LoadedFake&) = delete;
    LoadedFake& operator=(const LoadedFake&) = delete;
    ~LoadedFake() {
        if (library_) ::dlclose(library_);
    }
    FakeNVML* operator->() const { return state_; }
    FakeNVML& operator*() const { return *state_; }
    explicit operator bool() const { return state_ != nullptr; }

  private:
    void* library_;
    FakeNVML* state_ = nullptr;
};

class NVIDIAGraphicsCard : public testing::Test {
  protected:
    static constexpr const char* place = "0000:01:00.0";

    explicit NVIDIAGraphicsCard(const char* file = FAKE_NVML_FILE)
        : nvml(file), graphics(makeNVMLLibrary(file)) {
        card(0, place, "on");
    }
    void SetUp() override { ASSERT_TRUE(nvml); }

    void card(unsigned number, const char* address, const char* control) {
        graphics.card(number, address, "10de:2484", "nvidia", {{"power/control", control}});
    }
    std::map<std::string, double> statistics() { return graphics.pass().at(0).statistics; }

    LoadedFake nvml;
    FakeGraphics graphics;
};

TEST_F(NVIDIAGraphicsCard, IsAskedThroughItsDriversLibrary) {
    EXPECT_THAT(statistics(),
                ElementsAre(Pair("Device Utilization %", 42), Pair("Temperature(C)", 55),
                            Pair("VRAM Total", 8589934592), Pair("VRAM Used", 1073741824)));
    EXPECT_STREQ(nvml->lastAddress, "0000:01:00.0");
    EXPECT_EQ(graphics.pass().at(0).model, "NVIDIA GeForce RTX 3070");
    const auto devices = graphics.devices();
    EXPECT_EQ(devices.at(0).name, "NVIDIA GeForce RTX 3070");
    EXPECT_EQ(devices.at(0).recommendedMaxWorkingSetSize, 8589934592U);
    EXPECT_FALSE(devices.at(0).hasUnifiedMemory);
    EXPECT_EQ(nvml->strayQuestions, 0);
}

TEST_F(NVIDIAGraphicsCard, ThatIsAlwaysOnKeepsTheLibraryOpen) {
    for (int i = 0; i < 5; ++i)
        statistics();
    EXPECT_EQ(nvml->inits, 1);
    EXPECT_EQ(nvml->handles, 1);
    EXPECT_EQ(nvml->shutdowns, 0);
}

TEST_F(NVIDIAGraphicsCard, ThatIsAlwaysOnLetsGoAtTheEnd) {
    {
        FakeGraphics other(makeNVMLLibrary(FAKE_NVML_FILE));
        other.card(0, place, "10de:2484", "nvidia", {{"power/control", "on"}});
        other.pass();
        EXPECT_EQ(nvml->shutdowns, 0);
    }
    EXPECT_EQ(nvml->shutdowns, 1);
}

TEST_F(NVIDIAGraphicsCard, ThatMaySleepIsLetGoOfAfterEachPass) {
    graphics.file(place, "power/control", "auto");
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(statistics().size(), 4U);
    EXPECT_EQ(nvml->inits, 5);
    EXPECT_EQ(nvml->shutdowns, 5);
    EXPECT_EQ(nvml->strayQuestions, 0);
}

TEST_F(NVIDIAGraphicsCard, WithoutPowerManagementIsAlwaysOn) {
    graphics.file(place, "power/control", "auto");
    graphics.power(place, "unsupported");
    statistics();
    statistics();
    EXPECT_EQ(nvml->inits, 1);
}

TEST_F(NVIDIAGraphicsCard, ThatSleepsIsNotAskedAtAll) {
    graphics.power(place, "suspended");
    graphics.devices();
    EXPECT_THAT(statistics(), IsEmpty());
    EXPECT_EQ(nvml->inits, 0);
    EXPECT_EQ(nvml->questions, 0);
}

TEST_F(NVIDIAGraphicsCard, ThatFallsAsleepIsLetGoOf) {
    statistics();
    graphics.power(place, "suspending");
    EXPECT_THAT(statistics(), IsEmpty());
    EXPECT_EQ(nvml->shutdowns, 1);
    EXPECT_EQ(graphics.pass().at(0).model, "NVIDIA GeForce RTX 3070");
}

TEST_F(NVIDIAGraphicsCard, ThatSleepsLetsAnotherBeAsked) {
    card(1, "0000:02:00.0", "on");
    graphics.power(place, "suspended");
    const auto told = graphics.pass();
    EXPECT_THAT(told.at(0).statistics, IsEmpty());
    EXPECT_EQ(told.at(1).statistics.size(), 4U);
    EXPECT_STREQ(nvml->lastAddress, "0000:02:00.0");
    EXPECT_EQ(nvml->handles, 1);
    EXPECT_EQ(nvml->shutdowns, 1);
}

TEST_F(NVIDIAGraphicsCard, WithoutAnAnswerHasNoSuchFigure) {
    statistics();
    nvml->utilizationResult = notSupported;
    EXPECT_EQ(statistics().count("Device Utilization %"), 0U);
    nvml->memoryResult = unknown;
    nvml->temperatureResult = notSupported;
    nvml->nameResult = unknown;
    EXPECT_THAT(statistics(), IsEmpty());
    *nvml = {};
    EXPECT_EQ(statistics().size(), 4U);
}

TEST_F(NVIDIAGraphicsCard, SaysNothingThatCannotBe) {
    nvml->utilization = 101;
    nvml->temperature = 4294967295;
    nvml->memoryUsed = nvml->memoryTotal + 1;
    EXPECT_THAT(statistics(), IsEmpty());
    nvml->memoryUsed = nvml->memoryTotal = 0;
    EXPECT_THAT(statistics(), IsEmpty());
}

TEST_F(NVIDIAGraphicsCard, ThatIsLostWhileItRunsMayComeBack) {
    EXPECT_EQ(statistics().size(), 4U);
    nvml->utilizationResult = nvml->memoryResult = nvml->temperatureResult = gpuIsLost;
    nvml->nameResult = nvml->handleResult = gpuIsLost;
    EXPECT_THAT(statistics(), IsEmpty());
    EXPECT_THAT(statistics(), IsEmpty());
    EXPECT_EQ(graphics.pass().at(0).model, "NVIDIA GeForce RTX 3070");
    *nvml = {};
    nvml->inits = 1;
    EXPECT_EQ(statistics().size(), 4U);
    EXPECT_EQ(nvml->handles, 1);
}

TEST_F(NVIDIAGraphicsCard, WhoseLibraryFailsIsListedByName) {
    nvml->initResult = 18;  // of another version than the driver
    EXPECT_THAT(statistics(), IsEmpty());
    EXPECT_EQ(graphics.pass().at(0).model, "NVIDIA 0x2484");
    EXPECT_EQ(nvml->shutdowns, 0);
    nvml->initResult = 0;
    int passes = 0;
    while (statistics().empty() && passes < 100)
        ++passes;
    EXPECT_EQ(statistics().size(), 4U);
    EXPECT_GT(passes, 10);
}

TEST_F(NVIDIAGraphicsCard, OnlyNeedsTheLibrary) {
    FakeGraphics other(makeNVMLLibrary(FAKE_NVML_FILE));
    other.card(0, "0000:03:00.0", "1002:73bf", "amdgpu");
    other.card(1, "0000:04:00.0", "10de:2484", "nouveau");
    other.pass();
    EXPECT_EQ(nvml->inits, 0);
}

TEST(MissingNVML, LeavesTheCardItsName) {
    FakeGraphics graphics(makeNVMLLibrary("/nowhere/libnvidia-ml.so.1"));
    graphics.card(0, "0000:01:00.0", "10de:2484", "nvidia");
    EXPECT_THAT(graphics.pass().at(0).statistics, IsEmpty());
    EXPECT_EQ(graphics.pass().at(0).model, "NVIDIA 0x2484");
}

/// A library that lacks something. Its card may sleep, so that the library is let go of each time.
class IncompleteNVML {
  public:
    explicit IncompleteNVML(const char* file) : nvml(file), graphics(makeNVMLLibrary(file)) {
        graphics.card(0, "0000:01:00.0", "10de:2484", "nvidia", {{"power/control", "auto"}});
    }
    std::map<std::string, double> statistics() { return graphics.pass().at(0).statistics; }

    LoadedFake nvml;
    FakeGraphics graphics;
};

TEST(OldNVML, TellsWhatItCan) {
    IncompleteNVML old(FAKE_NVML_OLD_FILE);
    ASSERT_TRUE(old.nvml);
    EXPECT_THAT(old.statistics(), ElementsAre(Pair("Device Utilization %", 42)));
    EXPECT_EQ(old.graphics.pass().at(0).model, "NVIDIA 0x2484");
}

TEST(OldNVML, ThatDoesNotTellHowBusyACardIsTellsTheRest) {
    IncompleteNVML old(FAKE_NVML_NO_UTILIZATION_FILE);
    ASSERT_TRUE(old.nvml);
    const auto figures = ElementsAre(Pair("Temperature(C)", 55), Pair("VRAM Total", 8589934592),
                                     Pair("VRAM Used", 1073741824));
    EXPECT_THAT(old.statistics(), figures);
    EXPECT_THAT(old.statistics(), figures);
    EXPECT_EQ(old.graphics.pass().at(0).model, "NVIDIA GeForce RTX 3070");
    EXPECT_EQ(old.nvml->inits, 2) << "and rests then, for nothing tells that it does anything";
    EXPECT_EQ(old.nvml->shutdowns, 2);
}

TEST(UselessNVML, ThatWouldWakeAllDevicesIsNotUsed) {
    IncompleteNVML useless(FAKE_NVML_USELESS_FILE);
    ASSERT_TRUE(useless.nvml);
    EXPECT_THAT(useless.statistics(), IsEmpty());
    EXPECT_EQ(useless.nvml->strayQuestions, 0);
    EXPECT_EQ(useless.nvml->shutdowns, 0);
}

TEST(UselessNVML, ThatCannotBeLetGoOfIsNotUsed) {
    IncompleteNVML useless(FAKE_NVML_NO_SHUTDOWN_FILE);
    ASSERT_TRUE(useless.nvml);
    EXPECT_THAT(useless.statistics(), IsEmpty());
    EXPECT_EQ(useless.nvml->inits, 0) << "it would hold on to the card for ever";
    EXPECT_EQ(useless.nvml->questions, 0);
}

TEST(UselessNVML, ThatFindsNoDeviceByItsPlaceIsNotUsed) {
    IncompleteNVML useless(FAKE_NVML_NO_HANDLE_FILE);
    ASSERT_TRUE(useless.nvml);
    EXPECT_THAT(useless.statistics(), IsEmpty());
    EXPECT_EQ(useless.nvml->inits, 0);
    EXPECT_EQ(useless.graphics.pass().at(0).model, "NVIDIA 0x2484");
}

}  // namespace
}  // namespace vantor::nvml_library_test

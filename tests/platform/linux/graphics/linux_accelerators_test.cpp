#include "platform/linux/graphics/linux_accelerators.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/fake_graphics.h"

namespace vantor::linux_accelerators_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class AMDGraphicsCard : public testing::Test {
  protected:
    static constexpr const char* place = "0000:03:00.0";

    AMDGraphicsCard() {
        graphics.card(0, place, "1002:73bf", "amdgpu",
                      {{"gpu_busy_percent", "37"},
                       {"mem_info_vram_used", "2147483648"},
                       {"mem_info_vram_total", "17163091968"},
                       {"mem_info_gtt_used", "1000"},
                       {"mem_info_gtt_total", "2000"},
                       {"hwmon/hwmon2/temp1_input", "51000"},
                       {"hwmon/hwmon2/temp1_label", "edge"},
                       {"hwmon/hwmon2/temp2_input", "60000"},
                       {"hwmon/hwmon2/temp2_label", "junction"},
                       {"hwmon/hwmon2/temp3_input", "70000"},
                       {"hwmon/hwmon2/temp3_label", "mem"}});
    }

    void say(const char* file, const std::string& text) const { graphics.file(place, file, text); }
    std::map<std::string, double> statistics() { return graphics.pass().at(0).statistics; }
    std::optional<double> figure(const char* key) { return graphics.figure(key); }
    /// What the driver does while the card resets: there is a file, but reading it fails.
    void fail(const char* file) const {
        graphics.remove(place, file);
        graphics.file(place, std::string(file) + "/x", "");
    }

    FakeGraphics graphics;
};

TEST_F(AMDGraphicsCard, TellsInItsFilesWhatItDoes) {
    EXPECT_THAT(statistics(),
                ElementsAre(Pair("Device Utilization %", 37), Pair("Temperature(C)", 51),
                            Pair("VRAM Total", 17163091968), Pair("VRAM Used", 2147483648)));
    const auto devices = graphics.devices();
    EXPECT_FALSE(devices.at(0).hasUnifiedMemory);
    EXPECT_EQ(devices.at(0).recommendedMaxWorkingSetSize, 17163091968U);
}

TEST_F(AMDGraphicsCard, IsAskedAnewAtEachPass) {
    statistics();
    say("gpu_busy_percent", "0");
    say("mem_info_vram_used", "5");
    say("hwmon/hwmon2/temp1_input", "-500");
    EXPECT_THAT(statistics(),
                ElementsAre(Pair("Device Utilization %", 0), Pair("Temperature(C)", -0.5),
                            Pair("VRAM Total", 17163091968), Pair("VRAM Used", 5)));
}

TEST_F(AMDGraphicsCard, BesideAProcessorSharesItsMemory) {
    say("hwmon/hwmon2/in1_label", "vddnb");
    say("mem_info_vram_used", "400");
    say("mem_info_vram_total", "500");
    const auto devices = graphics.devices();
    EXPECT_TRUE(devices.at(0).hasUnifiedMemory);
    EXPECT_EQ(devices.at(0).recommendedMaxWorkingSetSize, 2500U);
    EXPECT_EQ(figure("VRAM Used"), 1400);
    EXPECT_EQ(figure("VRAM Total"), 2500);
}

TEST_F(AMDGraphicsCard, BesideAProcessorIsNotKnownByTheAmountsOfMemory) {
    say("mem_info_vram_total", "536870912");
    say("mem_info_vram_used", "400");
    EXPECT_FALSE(graphics.devices().at(0).hasUnifiedMemory);
    EXPECT_EQ(figure("VRAM Used"), 400);
}

TEST_F(AMDGraphicsCard, BesideAProcessorSaysNothingWhenAPartOfItsMemoryIsUnknown) {
    say("hwmon/hwmon2/in1_label", "vddnb");
    say("mem_info_gtt_used", "");
    EXPECT_EQ(figure("VRAM Used"), std::nullopt);
    EXPECT_EQ(figure("VRAM Total"), std::nullopt);
    say("mem_info_gtt_used", "18446744073709551615");
    EXPECT_EQ(figure("VRAM Used"), std::nullopt);
}

TEST_F(AMDGraphicsCard, OfAnOldKernelDoesNotTellHowBusyItIs) {
    graphics.remove(place, "gpu_busy_percent");
    EXPECT_EQ(figure("Device Utilization %"), std::nullopt);
    EXPECT_EQ(figure("VRAM Used"), 2147483648);
}

TEST_F(AMDGraphicsCard, WithoutSensorsHasNoTemperature) {
    graphics.remove(place, "hwmon");
    EXPECT_EQ(figure("Temperature(C)"), std::nullopt);
    EXPECT_EQ(figure("Device Utilization %"), 37);
}

TEST_F(AMDGraphicsCard, WithoutAnEdgeIsAsHotAsItsJunction) {
    graphics.remove(place, "hwmon/hwmon2/temp1_input");
    EXPECT_EQ(figure("Temperature(C)"), 60);
}

TEST_F(AMDGraphicsCard, WithoutLabelsIsAsHotAsItsFirstSensor) {
    for (const char* const label : {"temp1_label", "temp2_label", "temp3_label"})
        graphics.remove(place, std::string("hwmon/hwmon2/") + label);
    EXPECT_EQ(figure("Temperature(C)"), 51);
}

TEST_F(AMDGraphicsCard, ThatCannotAnswerNowDoesSoAtTheNextPass) {
    graphics.remove(place, "hwmon/hwmon2/temp2_input");
    say("gpu_busy_percent", "");
    say("hwmon/hwmon2/temp1_input", "");
    EXPECT_THAT(statistics(),
                ElementsAre(Pair("VRAM Total", 17163091968), Pair("VRAM Used", 2147483648)));
    say("gpu_busy_percent", "41");
    say("hwmon/hwmon2/temp1_input", "48000");
    EXPECT_EQ(figure("Device Utilization %"), 41);
    EXPECT_EQ(figure("Temperature(C)"), 48);
}

TEST_F(AMDGraphicsCard, WhoseFilesFailHasNoFigures) {
    for (const char* const file : {"gpu_busy_percent", "mem_info_vram_used", "mem_info_vram_total",
                                   "hwmon/hwmon2/temp1_input", "hwmon/hwmon2/temp2_input"})
        fail(file);
    EXPECT_THAT(statistics(), IsEmpty());
}

TEST_F(AMDGraphicsCard, SaysNothingThatCannotBe) {
    for (const char* const text : {"101", "-1", "4294967296", "18446744073709551616", "x", "12 %",
                                   "", "\n", "1.5", "0x10"}) {
        say("gpu_busy_percent", text);
        EXPECT_EQ(figure("Device Utilization %"), std::nullopt) << text;
    }
    for (const char* const text : {"18446744073709551616", "17163091969", "-1", "x", ""}) {
        say("mem_info_vram_used", text);
        EXPECT_EQ(figure("VRAM Used"), std::nullopt) << text;
    }
    for (const char* const text : {"250001", "-100001", "511000000000000000000", "hot", ""}) {
        say("hwmon/hwmon2/temp1_input", text);
        EXPECT_EQ(figure("Temperature(C)"), 60) << text << ": the junction stands in";
    }
    say("gpu_busy_percent", std::string(100'000, '1'));
    EXPECT_EQ(figure("Device Utilization %"), std::nullopt);
}

TEST_F(AMDGraphicsCard, GetsItsSensorsWhenTheDriverBringsThem) {
    graphics.remove(place, "hwmon");
    EXPECT_EQ(figure("Temperature(C)"), std::nullopt);
    say("hwmon/hwmon9/temp1_input", "33000");
    EXPECT_EQ(graphics.figure("Temperature(C)", GraphicsCards::listingInterval + 1), 33);
}

TEST(OtherGraphicsCards, AreNamedAndMeasuredByTheirSensors) {
    FakeGraphics graphics;
    graphics.card(0, "0000:01:00.0", "10de:1c03", "nouveau",
                  {{"hwmon/hwmon1/temp1_input", "40000"}});
    graphics.card(1, "0000:05:00.0", "1af4:1050", "virtio-pci");
    const auto told = graphics.pass();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_THAT(told[0].statistics, ElementsAre(Pair("Temperature(C)", 40)));
    EXPECT_EQ(told[1].model, "Red Hat 0x1050");
    EXPECT_THAT(told[1].statistics, IsEmpty());
}

TEST(AcceleratorObjects, ThatAreNoneAnswerNothing) {
    FakeGraphics graphics;
    graphics.card(0, "0000:00:02.0", "8086:5917", "i915");
    auto& accelerators = graphics.accelerators;
    const auto iterator = accelerators.matchingServices();
    ASSERT_TRUE(iterator);
    const auto service = accelerators.iteratorNext(*iterator);
    EXPECT_NE(service, 0U);
    EXPECT_EQ(accelerators.iteratorNext(*iterator), 0U);
    EXPECT_EQ(accelerators.iteratorNext(service), 0U);
    for (const Accelerators::Object none : {0U, 1U, service + 1, 0xFFFFFFFFU}) {
        EXPECT_EQ(accelerators.property(none, "model"), nullptr);
        EXPECT_EQ(accelerators.registryEntryID(none), std::nullopt);
    }
    EXPECT_EQ(accelerators.property(service, "class"), nullptr);
    EXPECT_EQ(*accelerators.property(service, "model")->text(), "Intel 0x5917");
}

}  // namespace
}  // namespace vantor::linux_accelerators_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/graphics/card_sensors.h"
#include "support/failing_read.h"
#include "support/fake_graphics.h"
#include "support/named_row.h"
#include "support/silent_pipe.h"

/// Sensors of graphics cards that fail as the kernel's do, and who stands in for them.
namespace vantor::failing_card_sensor_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using Labels = std::vector<CardSensorLabel>;

TEST(CardSensors, AreTheEdgeThenTheJunctionThenThePackageThenOthers) {
    EXPECT_THAT(orderCardSensors(Labels{}), IsEmpty());
    EXPECT_THAT(orderCardSensors(Labels{{1, "junction"}, {2, "edge"}}), ElementsAre(2, 1));
    EXPECT_THAT(orderCardSensors(Labels{{1, ""}, {2, "pkg"}, {3, "edge"}, {4, "junction"}}),
                ElementsAre(3, 4, 2, 1));
    EXPECT_THAT(orderCardSensors(Labels{{1, ""}, {2, ""}}), ElementsAre(1, 2));
}

TEST(CardSensors, AreNotThoseOfTheMemoryAndTheConnection) {
    EXPECT_THAT(orderCardSensors(Labels{{1, "mem"}, {2, "junction"}}), ElementsAre(2));
    EXPECT_THAT(orderCardSensors(Labels{{2, "vram"}, {3, "pkg"}}), ElementsAre(3));
    EXPECT_THAT(orderCardSensors(
                    Labels{{1, "mem"}, {2, "vram"}, {3, "vram_ch_0"}, {4, "mctrl"}, {5, "pcie"}}),
                IsEmpty());
}

class GraphicsCardWithSensors {
  public:
    static constexpr const char* place = "0000:03:00.0";

    GraphicsCardWithSensors() {
        graphics.card(0, place, "1002:73bf", "amdgpu",
                      {{"gpu_busy_percent", "37"},
                       {"hwmon/hwmon2/temp1_input", "51000"},
                       {"hwmon/hwmon2/temp1_label", "edge"},
                       {"hwmon/hwmon2/temp2_input", "60000"},
                       {"hwmon/hwmon2/temp2_label", "junction"},
                       {"hwmon/hwmon2/temp3_input", "70000"},
                       {"hwmon/hwmon2/temp3_label", "mem"}});
    }

    std::filesystem::path path(const std::string& name) const {
        return graphics.tree.roots().sys / graphics.folder(place) / name;
    }
    std::optional<double> temperature() { return graphics.figure("Temperature(C)"); }

    FakeGraphics graphics;
};

struct ErrorRow : NamedRow {
    int error;
};

class FailingCardSensor : public testing::TestWithParam<ErrorRow>,
                          protected GraphicsCardWithSensors {
  protected:
    FailingRead fail(const char* name) const { return {path(name), GetParam().error}; }
};

INSTANTIATE_TEST_SUITE_P(Errors, FailingCardSensor,
                         testing::Values(ErrorRow{{"TryAgain"}, EAGAIN}, ErrorRow{{"Input"}, EIO},
                                         ErrorRow{{"NotPermitted"}, EPERM},
                                         ErrorRow{{"NoData"}, ENODATA},
                                         ErrorRow{{"NotSupported"}, EOPNOTSUPP}),
                         rowName<ErrorRow>);

TEST_P(FailingCardSensor, IsStoodInForByTheNextForAsLong) {
    EXPECT_EQ(temperature(), 51);
    {
        const FailingRead edge = fail("hwmon/hwmon2/temp1_input");
        EXPECT_EQ(temperature(), 60);
        EXPECT_EQ(temperature(), 60);
        EXPECT_EQ(edge.count(), 2) << "once a pass";
    }
    EXPECT_EQ(temperature(), 51);
}

TEST_P(FailingCardSensor, ThatIsTheLastLeavesNoTemperatureAndTheOtherFigures) {
    const FailingRead junction = fail("hwmon/hwmon2/temp2_input");
    EXPECT_EQ(temperature(), 51);
    EXPECT_EQ(junction.count(), 0) << "the best one is enough";
    const FailingRead edge = fail("hwmon/hwmon2/temp1_input");
    EXPECT_THAT(graphics.pass().at(0).statistics, ElementsAre(Pair("Device Utilization %", 37)))
        << "the memory's is not the card's";
}

TEST_P(FailingCardSensor, HidesNoOtherCards) {
    graphics.card(1, "0000:04:00.0", "10de:1c03", "nouveau",
                  {{"hwmon/hwmon7/temp1_input", "40000"}});
    const FailingRead edge = fail("hwmon/hwmon2/temp1_input");
    const FailingRead junction = fail("hwmon/hwmon2/temp2_input");
    EXPECT_THAT(graphics.pass().at(1).statistics, ElementsAre(Pair("Temperature(C)", 40)));
}

TEST_P(FailingCardSensor, OfACardThatFallsAsleepIsStoodInForByNone) {
    EXPECT_EQ(temperature(), 51);
    const FailingRead junction = fail("hwmon/hwmon2/temp2_input");
    const FailingRead edge(path("hwmon/hwmon2/temp1_input"), GetParam().error,
                           [this] { graphics.power(place, "suspending"); });
    EXPECT_THAT(graphics.pass().at(0).statistics, IsEmpty());
    EXPECT_EQ(edge.count(), 1);
    EXPECT_EQ(junction.count(), 0) << "the question would wake the card";
}

TEST_P(FailingCardSensor, IsNotAskedWhenTheCardFellAsleepAtAnotherQuestion) {
    EXPECT_EQ(temperature(), 51);
    const FailingRead edge = fail("hwmon/hwmon2/temp1_input");
    const FailingRead busyness(path("gpu_busy_percent"), GetParam().error,
                               [this] { graphics.power(place, "suspending"); });
    EXPECT_THAT(graphics.pass().at(0).statistics, IsEmpty());
    EXPECT_EQ(edge.count(), 0);
}

class SilentCardSensor : public testing::Test, protected GraphicsCardWithSensors {};

TEST_F(SilentCardSensor, IsNotWaitedForAndIsStoodInFor) {
    {
        const SilentPipe edge(path("hwmon/hwmon2/temp1_input"));
        EXPECT_EQ(temperature(), 60);
        const SilentPipe junction(path("hwmon/hwmon2/temp2_input"));
        graphics.wind(GraphicsCards::listingInterval);  // files are opened anew
        EXPECT_EQ(temperature(), std::nullopt);
    }
    std::filesystem::remove(path("hwmon/hwmon2/temp1_input"));
    graphics.file(place, "hwmon/hwmon2/temp1_input", "52000");
    graphics.wind(GraphicsCards::listingInterval);
    EXPECT_EQ(temperature(), 52);
}

TEST_F(SilentCardSensor, WhoseLabelIsNotTheSameAsNone) {
    const SilentPipe edge(path("hwmon/hwmon2/temp1_label"));
    const SilentPipe memory(path("hwmon/hwmon2/temp3_label"));
    EXPECT_EQ(temperature(), 60);
    const FailingRead junction(path("hwmon/hwmon2/temp2_input"), EIO);
    EXPECT_EQ(temperature(), std::nullopt) << "any of the others may be the memory's";
}

TEST_F(SilentCardSensor, OfOneMonitorIsStoodInForByAnother) {
    graphics.file(place, "hwmon/hwmon5/temp1_input", "44000");
    const SilentPipe edge(path("hwmon/hwmon2/temp1_input"));
    const SilentPipe junction(path("hwmon/hwmon2/temp2_input"));
    EXPECT_EQ(temperature(), 44);
}

}  // namespace
}  // namespace vantor::failing_card_sensor_test

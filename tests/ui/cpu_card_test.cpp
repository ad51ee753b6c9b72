#include "ui/cards/cpu_card.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "ui/cpu_samples.h"
#include "ui/rendering.h"

/// What the card says; how it looks is another file.
namespace vantor::cpu_card_test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string value(const CPUCard& card, std::size_t row) {
    return utf8(card.rows().at(row).value);
}

TEST(CPUCard, FrameSaysWhatItIs) {
    const DashboardState state = stateWithCPU();
    const DashboardCard frame = CPUCard::of(state).frame();
    EXPECT_EQ(utf8(frame.title), "CPU");
    EXPECT_EQ(utf8(frame.icon), "cpu");
    EXPECT_EQ(frame.accent, VantorTheme::cyan());
}

TEST(CPUCard, SubtitleCountsTheCores) {
    DashboardState state = stateWithCPU();
    EXPECT_EQ(utf8(CPUCard::of(state).frame().subtitle.value()),
              "4 physical \u2022 8 logical cores");
    state.snapshot.cpu.physicalCoreCount = 1;
    state.snapshot.cpu.logicalCoreCount = 1;
    EXPECT_EQ(utf8(CPUCard::of(state).frame().subtitle.value()),
              "1 physical \u2022 1 logical cores");
}

TEST(CPUCard, GaugeShowsTheWholeUsageInWholePercent) {
    DashboardState state = stateWithCPU();
    const RingGauge gauge = CPUCard::of(state).gauge();
    EXPECT_DOUBLE_EQ(gauge.value, 0.42);
    EXPECT_EQ(utf8(gauge.title), "42%");
    EXPECT_EQ(utf8(gauge.detail), "CPU Load");
    EXPECT_EQ(gauge.accent, VantorTheme::cyan());
    EXPECT_DOUBLE_EQ(gauge.lineWidth, 12);
}

TEST(CPUCard, RowsStandInTheirOrderWithTheirColours) {
    const DashboardState state = stateWithCPU();
    const auto rows = CPUCard::of(state).rows();
    EXPECT_EQ(rows[0],
              (MetricRow{QStringLiteral("User"), QStringLiteral("30.2%"), VantorTheme::orange()}));
    EXPECT_EQ(rows[1],
              (MetricRow{QStringLiteral("System"), QStringLiteral("11.8%"), VantorTheme::blue()}));
    EXPECT_EQ(rows[2], (MetricRow{QStringLiteral("Nominal"), QStringLiteral("2.40 GHz"),
                                  VantorTheme::pink()}));
    EXPECT_EQ(rows[3], (MetricRow{QStringLiteral("Temperature"), QStringLiteral("54 °C"),
                                  VantorTheme::purple()}));
}

TEST(CPUCard, NominalFrequencyHasTwoDecimals) {
    DashboardState state = stateWithCPU();
    state.snapshot.cpu.nominalFrequencyHz = 3'193'999'999;
    EXPECT_EQ(value(CPUCard::of(state), 2), "3.19 GHz");
    state.snapshot.cpu.nominalFrequencyHz = 24'000'000;
    EXPECT_EQ(value(CPUCard::of(state), 2), "0.02 GHz");
}

TEST(CPUCard, TemperatureIsInWholeDegrees) {
    DashboardState state = stateWithCPU();
    state.snapshot.cpu.temperatureCelsius = 99.6;
    EXPECT_EQ(value(CPUCard::of(state), 3), "100 \u00B0C");
}

TEST(CPUCard, WhatTheMachineDoesNotPublishIsSaidSoAndNeverZero) {
    DashboardState state = stateWithCPU();
    state.snapshot.cpu.nominalFrequencyHz.reset();
    state.snapshot.cpu.temperatureCelsius.reset();
    EXPECT_EQ(value(CPUCard::of(state), 2), "Not published");
    EXPECT_EQ(value(CPUCard::of(state), 3), "Not published");
}

TEST(CPUCard, LoadAveragesAreJoinedByTwoBlanks) {
    DashboardState state = stateWithCPU();
    EXPECT_EQ(utf8(CPUCard::of(state).loadAverageText()), "Load avg 1.50  0.75  0.33");
    state.snapshot.cpu.loadAverage = {12.345};
    EXPECT_EQ(utf8(CPUCard::of(state).loadAverageText()), "Load avg 12.35");
}

TEST(CPUCard, WithoutLoadAveragesTheLineHasADash) {
    DashboardState state = stateWithCPU();
    state.snapshot.cpu.loadAverage.clear();
    EXPECT_EQ(utf8(CPUCard::of(state).loadAverageText()), "Load avg \u2014");
}

TEST(CPUCard, BeforeTheFirstReadingNothingIsANumber) {
    const DashboardState waiting;
    const CPUCard card = CPUCard::of(waiting);
    ASSERT_TRUE(card.isWaiting());
    EXPECT_EQ(utf8(card.frame().subtitle.value()), "Detecting processor\u2026");
    EXPECT_EQ(utf8(card.gauge().title), "\u2014");
    EXPECT_EQ(utf8(card.gauge().detail), "CPU Load");
    EXPECT_TRUE(std::isnan(card.gauge().value)) << "which nobody is told as 0 percent";
    for (std::size_t row = 0; row < 4; ++row)
        EXPECT_EQ(value(card, row), "\u2014") << row;
    EXPECT_EQ(utf8(card.loadAverageText()), "Load avg \u2014");
}

TEST(CPUCard, AnIdleMachineIsNotAWaitingOne) {
    DashboardState state;
    state.revisions.cpu = 1;
    const CPUCard card = CPUCard::of(state);
    EXPECT_EQ(utf8(card.gauge().title), "0%");
    EXPECT_EQ(value(card, 0), "0.0%");
    EXPECT_EQ(value(card, 2), "Not published");
}

TEST(CPUCard, BorrowsWhatItShowsFromTheState) {
    DashboardState state = stateWithCPU();
    state.processesByCPU = manyProcesses();
    state.revisions.processes = 7;
    const CPUCard card = CPUCard::of(state);
    EXPECT_EQ(&card.stats, &state.snapshot.cpu);
    EXPECT_EQ(card.history.data(), state.histories.cpu.data());
    EXPECT_EQ(card.processes.data(), state.processesByCPU.data());
    EXPECT_EQ(card.revision, 1u);
    EXPECT_EQ(card.processRevision, 7u);
}

TEST(CPUCard, EqualityComparesTheRevisionsAndNothingElse) {
    DashboardState one = stateWithCPU();
    DashboardState other = stateWithCPU();
    other.snapshot.cpu.totalUsage = 0.9;
    other.snapshot.cpu.model = "Another";
    other.histories.cpu.clear();
    other.processesByCPU = manyProcesses();
    EXPECT_TRUE(CPUCard::of(one) == CPUCard::of(other));
    other.revisions.cpu = 2;
    EXPECT_FALSE(CPUCard::of(one) == CPUCard::of(other));
    other.revisions.cpu = 1;
    other.revisions.processes = 1;
    EXPECT_FALSE(CPUCard::of(one) == CPUCard::of(other));
}

TEST(CPUCard, OtherSectionsRevisionsDoNotTouchIt) {
    const DashboardState one = stateWithCPU();
    DashboardState other = stateWithCPU();
    other.revisions.memory = other.revisions.network = other.revisions.gpu = 5;
    other.revisions.storage = other.revisions.system = 5;
    EXPECT_TRUE(CPUCard::of(one) == CPUCard::of(other));
}

}  // namespace
}  // namespace vantor::cpu_card_test

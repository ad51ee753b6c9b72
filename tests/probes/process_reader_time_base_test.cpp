#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

#include "probes/process_world.h"

namespace vantor::process_reader_time_base_test {
namespace {

struct TimeBaseRow {
    const char* name;
    std::optional<std::uint64_t> frequency;
    std::optional<ProcessTable::Timebase> timebase;
    double unitsPerSecond;

    friend void PrintTo(const TimeBaseRow& row, std::ostream* out) { *out << row.name; }
};

class TimeBase : public testing::TestWithParam<TimeBaseRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, TimeBase,
    testing::Values(
        TimeBaseRow{"TheKernelsFrequency", 24'000'000, ProcessTable::Timebase{1, 1}, 24e6},
        TimeBaseRow{"NoFrequency", std::nullopt, ProcessTable::Timebase{125, 3}, 24e6},
        TimeBaseRow{"AFrequencyOfZero", 0, ProcessTable::Timebase{125, 3}, 24e6},
        TimeBaseRow{"ANumeratorOfZero", std::nullopt, ProcessTable::Timebase{0, 3}, 1e9},
        TimeBaseRow{"NoTimebase", std::nullopt, std::nullopt, 1e9},
        TimeBaseRow{"AFrequencyWithoutTimebase", 1000, std::nullopt, 1000}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(TimeBase, ConvertsTheProcessesTimes) {
    ProcessWorld world;
    if (GetParam().frequency) {
        world.machine->kernelValues().setUInt64("hw.tbfrequency", *GetParam().frequency);
    }
    world.table.nativeTimebase = GetParam().timebase;
    world.reader.emplace(world.machine);
    world.table.add(10, "/bin/a");
    world.reader->read();
    world.table.spend(10, static_cast<std::uint64_t>(GetParam().unitsPerSecond / 2));
    EXPECT_NEAR(rowOf(world.readAfter(1), 10).cpuPercent, 50, 1e-6);
}

TEST(ProcessReaderTimeBase, OfADenominatorOfZeroGivesNoShares) {
    ProcessWorld world;
    world.table.nativeTimebase = ProcessTable::Timebase{1, 0};
    world.reader.emplace(world.machine);
    world.table.add(10, "/bin/a");
    world.reader->read();
    world.table.spend(10, 1000);
    EXPECT_EQ(rowOf(world.readAfter(1), 10).cpuPercent, 0);
}

}  // namespace
}  // namespace vantor::process_reader_time_base_test

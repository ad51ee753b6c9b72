#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "probes/gpu_statistics.h"
#include "sampling/counted_passes.h"

/// Drivers publish hundreds of statistics, service by service and second by second.
namespace vantor::gpu_allocation_test {
namespace {

TEST(Allocations, OfFlatteningAndExtractingADriversStatisticsAreNone) {
    PropertyDictionary inner;
    for (int i = 0; i < 300; ++i)
        inner.push_back(
            {"A Counter With A Name Longer Than Any Short String " + std::to_string(i), i});
    inner.push_back({"VRAM Used(MB)", 1});
    const PropertyDictionary statistics{
        {"Temperature(C)", 61},
        {"A Group With A Name Longer Than Any Short String", PropertyValue(std::move(inner))},
        {"GPU Utilization", 0.5}};
    FlattenedStatistics buffer;
    std::string prefix;
    int readings = 0;
    EXPECT_EQ(allocationsOf([&] {
                  buffer.clear();
                  appendNumericValues(statistics, prefix, 0, buffer);
                  if (utilizationValue(buffer) == 0.5 && temperatureValue(buffer) == 61 &&
                      usedVRAMValue(buffer) == 1048576U && !totalVRAMValue(buffer))
                      ++readings;
              }),
              0U);
    EXPECT_EQ(readings, warmUp + passes);
}

}  // namespace
}  // namespace vantor::gpu_allocation_test

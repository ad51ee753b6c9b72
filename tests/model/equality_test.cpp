#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <tuple>
#include <type_traits>

#include "model/filled_records.h"
#include "model/power_read_result.h"

namespace vantor::equality_test {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// Another value that is as near as its type allows.
template <class T>
T changed(T value) {
    if constexpr (isOptional<T>) {
        value = changed(*value);
    } else if constexpr (isList<T>) {
        value.back() = changed(value.back());
    } else if constexpr (std::is_same_v<T, bool>) {
        value = !value;
    } else if constexpr (std::is_floating_point_v<T>) {
        value = std::nextafter(value, 0);
    } else if constexpr (std::is_arithmetic_v<T>) {
        ++value;
    } else if constexpr (std::is_same_v<T, Timestamp>) {
        value += Timestamp::duration{1};
    } else if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, SharedText>) {
        value = std::string(value) + '?';
    } else {
        auto& first = value.*(std::get<0>(fieldsOf<T>).member);
        first = changed(first);
    }
    return value;
}

template <class Record>
class RecordEquality : public testing::Test {
  protected:
    const Record record_ = filled::record<Record>();

    /// Changes one field after the other of a copy.
    template <class Change>
    void expectEachToCount(const Change& change) {
        Record copy = record_;
        EXPECT_EQ(copy, record_);
        forEachField(copy, [&](const char* name, auto& field) {
            const auto before = field;
            if (change(field)) {
                EXPECT_NE(copy, record_) << name;
            }
            field = before;
            EXPECT_EQ(copy, record_) << name;
            return true;
        });
    }
};

using Records = testing::Types<CPUStats, MemoryStats, NetworkInterfaceStats, NetworkStats, GPUStats,
                               VolumeStats, ProcessStats, ProcessSample, SystemInfoStats,
                               PowerStats, SystemSnapshot>;
TYPED_TEST_SUITE(RecordEquality, Records);

TYPED_TEST(RecordEquality, ComparesEveryFieldToTheLastBit) {
    this->expectEachToCount([](auto& field) {
        field = changed(field);
        return true;
    });
}

TYPED_TEST(RecordEquality, TellsAnAbsentFieldAndAShorterListFromTheirValues) {
    this->expectEachToCount([](auto& field) {
        using Field = std::remove_cvref_t<decltype(field)>;
        if constexpr (isOptional<Field>) field.reset();
        if constexpr (isList<Field>) field.pop_back();
        return isOptional<Field> || isList<Field>;
    });
}

TEST(Equality, OfListsDependsOnTheirOrder) {
    const CPUStats forward = filled::cpu();
    CPUStats backward = forward;
    std::swap(backward.perCoreUsage.front(), backward.perCoreUsage.back());
    EXPECT_NE(forward, backward);
}

TEST(Equality, HoldsForZerosOfBothSigns) {
    ProcessStats positive, negative;
    negative.cpuPercent = -0.0;
    EXPECT_EQ(positive, negative);
}

TEST(Equality, NeverHoldsWithAValueThatIsNotANumber) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.cpu.perCoreUsage.back() = nan;
    const SystemSnapshot sameData = snapshot;
    EXPECT_NE(snapshot, sameData);
    EXPECT_NE(snapshot, snapshot);
    PowerStats power = filled::power();
    power.chargeFraction = nan;
    EXPECT_NE(power, power);
}

TEST(Identity, OfAProcessIsItsPidWhateverElseChanged) {
    const ProcessStats before = filled::process();
    ProcessStats after = before;
    after.cpuPercent = 3;
    EXPECT_EQ(before.identity(), after.identity());
    EXPECT_NE(before, after);
    after.pid = before.pid + 1;
    EXPECT_NE(before.identity(), after.identity());
}

TEST(Identity, OfAVolumeIsItsPathAndOfADeviceItsID) {
    VolumeStats volume = filled::volume();
    volume.name = "Renamed";
    EXPECT_EQ(volume.identity(), filled::volume().identity());
    volume.path = "/elsewhere";
    EXPECT_NE(volume.identity(), filled::volume().identity());
    GPUStats gpu = filled::gpu();
    gpu.name = "Renamed";
    EXPECT_EQ(gpu.identity(), filled::gpu().identity());
    gpu.id = "gpu:2";
    EXPECT_NE(gpu.identity(), filled::gpu().identity());
}

TEST(PowerReadResult, TellsAMachineWithoutBatteryFromAFailure) {
    const auto withBattery = PowerReadResult::update(filled::power());
    const auto withoutBattery = PowerReadResult::update(std::nullopt);
    const auto failure = PowerReadResult::failure();
    EXPECT_TRUE(withBattery.isUpdate());
    EXPECT_EQ(withBattery.stats(), filled::power());
    EXPECT_TRUE(withoutBattery.isUpdate());
    EXPECT_EQ(withoutBattery.stats(), std::nullopt);
    EXPECT_FALSE(failure.isUpdate());
    EXPECT_NE(withoutBattery, failure);
    EXPECT_NE(withoutBattery, withBattery);
    EXPECT_EQ(failure, PowerReadResult::failure());
}

}  // namespace
}  // namespace vantor::equality_test

#include "model/snapshot_file_name.h"

#include <gtest/gtest.h>

#include "model/filled_records.h"

namespace vantor::snapshot_file_name_test {
namespace {

TEST(SnapshotFileName, OfAMorningInFebruaryHasTwoDigitsEverywhere) {
    EXPECT_EQ(snapshotFileName({2026, 2, 3, 9, 5, 7}), "Vantor-2026-02-03-090507.json");
}

TEST(SnapshotFileName, OfAnEveningInDecemberIsOfTheSameLength) {
    EXPECT_EQ(snapshotFileName({2031, 12, 31, 23, 59, 60}), "Vantor-2031-12-31-235960.json");
}

TEST(SnapshotFileName, HasAYearOfFourDigits) {
    EXPECT_EQ(snapshotFileName({987, 1, 1, 0, 0, 0}), "Vantor-0987-01-01-000000.json");
}

TEST(SnapshotFileMoment, IsThatOfTheSnapshot) {
    const SystemSnapshot snapshot = filled::snapshot();
    EXPECT_EQ(fileMoment(snapshot, snapshot.timestamp + std::chrono::hours{1}), snapshot.timestamp);
}

TEST(SnapshotFileMoment, IsNowWhileNothingHasBeenCommitted) {
    const Timestamp now{std::chrono::hours{12'345}};
    EXPECT_EQ(fileMoment(SystemSnapshot::empty(), now), now);
}

}  // namespace
}  // namespace vantor::snapshot_file_name_test

#include <gtest/gtest.h>

#include "model/process_sample.h"
#include "model/system_snapshot.h"

namespace vantor::empty_records_test {
namespace {

// A new record is empty: tests of the tables of fields say so of every field.

TEST(CPUPlaceholder, NamesTheSearchAndReadsAsAnIdleProcessor) {
    CPUStats expected;
    expected.model = "Detecting processor\xE2\x80\xA6";
    expected.idleUsage = 1.0;
    EXPECT_EQ(CPUStats::empty(), expected);
}

TEST(NetworkPlaceholder, NamesTheSearchAndHasNoInterface) {
    NetworkStats expected;
    expected.hostname = "Detecting host\xE2\x80\xA6";
    EXPECT_EQ(NetworkStats::empty(), expected);
}

TEST(ProcessSamplePlaceholder, IsThreeEmptyLists) {
    EXPECT_EQ(ProcessSample::empty(), ProcessSample{});
}

TEST(SnapshotPlaceholder, HoldsThePlaceholdersOfItsPartsAndNamesTheSearchForTheSystem) {
    SystemSnapshot expected;
    expected.timestamp = Timestamp::min();
    expected.cpu = CPUStats::empty();
    expected.network = NetworkStats::empty();
    expected.system.hostName = "Detecting host\xE2\x80\xA6";
    expected.system.hardwareModel = "Detecting hardware\xE2\x80\xA6";
    expected.system.operatingSystem = "Detecting macOS\xE2\x80\xA6";
    expected.system.thermalState = "Unknown";
    EXPECT_EQ(SystemSnapshot::empty(), expected);
}

TEST(SnapshotPlaceholder, IsOlderThanAnyRealSnapshot) {
    EXPECT_EQ(SystemSnapshot::empty().timestamp, Timestamp::min());
    EXPECT_LT(SystemSnapshot::empty().timestamp, Timestamp{});
}

TEST(Placeholders, AreBuiltOnceAndShared) {
    EXPECT_EQ(&CPUStats::empty(), &CPUStats::empty());
    EXPECT_EQ(&NetworkStats::empty(), &NetworkStats::empty());
    EXPECT_EQ(&ProcessSample::empty(), &ProcessSample::empty());
    EXPECT_EQ(&SystemSnapshot::empty(), &SystemSnapshot::empty());
}

}  // namespace
}  // namespace vantor::empty_records_test

#include "probes/storage_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "platform/simulated/simulated_machine.h"
#include "support/named_row.h"

namespace vantor::storage_reader_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Details = MountedVolumes::Details;
using Classification = MountedVolumes::Classification;

class StorageReaderTest : public testing::Test {
  protected:
    /// The paths of the list; "absent" alone when there is none.
    std::vector<std::string> paths() {
        const auto list = reader.read();
        if (!list) return {"absent"};
        std::vector<std::string> all;
        for (const VolumeStats& volume : *list)
            all.push_back(volume.path);
        return all;
    }

    std::shared_ptr<SimulatedMachine> machine = std::make_shared<SimulatedMachine>();
    SimulatedMountedVolumes& volumes = machine->mountedVolumes();
    StorageReader reader{machine};
};

TEST_F(StorageReaderTest, GivesEachFieldAsThePlatformHasIt) {
    volumes.add("/mnt/data", "Data").details = {"Data", 1000, 300, false, true, true};
    const auto list = reader.read();
    ASSERT_TRUE(list);
    EXPECT_THAT(*list, ElementsAre(VolumeStats{"Data", "/mnt/data", 1000, 300, false, true, true}));
}

TEST_F(StorageReaderTest, NoMountedVolumeAtAllGivesAnEmptyList) {
    EXPECT_THAT(paths(), IsEmpty());
}

TEST_F(StorageReaderTest, NoMountedVolumeAtAllForgetsWhatWasListed) {
    volumes.add("/a", "A");
    ASSERT_THAT(paths(), ElementsAre("/a"));
    const auto saved = std::exchange(volumes.volumes, {});
    ASSERT_THAT(paths(), IsEmpty());
    volumes.volumes = saved;
    volumes.add("/b", "B");
    volumes.at("/a").classification.isBrowsable.reset();
    EXPECT_THAT(paths(), ElementsAre("/b")) << "/a was in the last list but one";
}

TEST_F(StorageReaderTest, NoEnumerationGivesNoList) {
    volumes.add("/", "Root");
    volumes.enumerationFails = true;
    EXPECT_THAT(paths(), ElementsAre("absent"));
}

TEST_F(StorageReaderTest, ANetworkVolumeIsLeftOutAndNotAskedForDetails) {
    volumes.add("/", "Root");
    volumes.add("/net", "Net").classification.isLocal = false;
    EXPECT_THAT(paths(), ElementsAre("/"));
    EXPECT_THAT(volumes.detailedPaths, ElementsAre("/"));
}

TEST_F(StorageReaderTest, AVolumeThatIsNotBrowsableIsLeftOut) {
    volumes.add("/", "Root");
    volumes.add("/proc", "proc").classification.isBrowsable = false;
    EXPECT_THAT(paths(), ElementsAre("/"));
}

TEST_F(StorageReaderTest, ANetworkVolumeAloneGivesAnEmptyList) {
    volumes.add("/net", "Net").classification.isLocal = false;
    EXPECT_THAT(paths(), IsEmpty());
}

TEST_F(StorageReaderTest, APreviouslyListedVolumeOfUnknownClassMakesTheReadAbsent) {
    volumes.add("/", "Root");
    volumes.add("/data", "Data");
    ASSERT_THAT(paths(), ElementsAre("/", "/data"));
    volumes.at("/data").classification = {true, std::nullopt};
    EXPECT_THAT(paths(), ElementsAre("absent"));
    EXPECT_THAT(paths(), ElementsAre("absent")) << "an absent list changes nothing";
    volumes.at("/data").classification = {std::nullopt, true};
    EXPECT_THAT(paths(), ElementsAre("absent"));
    volumes.at("/data").classification = {true, true};
    EXPECT_THAT(paths(), ElementsAre("/", "/data"));
}

TEST_F(StorageReaderTest, ANeverListedVolumeOfUnknownClassIsOnlySkipped) {
    volumes.add("/", "Root");
    volumes.add("/data", "Data").classification.isBrowsable.reset();
    EXPECT_THAT(paths(), ElementsAre("/"));
    EXPECT_THAT(paths(), ElementsAre("/"));
}

TEST_F(StorageReaderTest, ANeverListedVolumeOfUnknownClassAloneMakesTheReadAbsent) {
    volumes.add("/data", "Data").classification.isBrowsable.reset();
    EXPECT_THAT(paths(), ElementsAre("absent"));
}

TEST_F(StorageReaderTest, AVolumeOfUnknownClassIsNotAskedForDetails) {
    volumes.add("/data", "Data").classification = {};
    paths();
    EXPECT_THAT(volumes.detailedPaths, IsEmpty());
}

TEST_F(StorageReaderTest, AVolumeOfUnknownClassIsUnknownWhicheverFlagIsMissing) {
    volumes.add("/data", "Data");
    volumes.at("/data").classification = {std::nullopt, false};
    EXPECT_THAT(paths(), ElementsAre("absent"));
    volumes.at("/data").classification = {false, std::nullopt};
    EXPECT_THAT(paths(), ElementsAre("absent"));
}

TEST_F(StorageReaderTest, AVolumeThatLeftTheListMayBecomeUnknownLater) {
    volumes.add("/", "Root");
    volumes.add("/data", "Data");
    ASSERT_THAT(paths(), ElementsAre("/", "/data"));
    volumes.at("/data").details.totalCapacity = 0;
    ASSERT_THAT(paths(), ElementsAre("/"));
    volumes.at("/data").classification = {};
    EXPECT_THAT(paths(), ElementsAre("/"));
}

TEST_F(StorageReaderTest, NothingListedButEverythingKnownIsAnEmptyList) {
    volumes.add("/data", "Data").details.totalCapacity = 0;
    EXPECT_THAT(paths(), IsEmpty());
}

struct DetailsRow : NamedRow {
    std::function<void(Details&)> change;
    std::vector<std::string> paths;
};

class VolumeDetails : public StorageReaderTest, public testing::WithParamInterface<DetailsRow> {};

const std::vector<std::string> both{"/", "/data"};
const std::vector<std::string> rootAlone{"/"};
const std::vector<std::string> absent{"absent"};
constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

INSTANTIATE_TEST_SUITE_P(
    Rows, VolumeDetails,
    testing::Values(
        DetailsRow{{"AllKnown"}, [](Details&) {}, both},
        DetailsRow{{"TotalZero"}, [](Details& d) { d.totalCapacity = 0; }, rootAlone},
        DetailsRow{{"TotalOne"}, [](Details& d) { d.totalCapacity = 1; }, both},
        DetailsRow{{"TotalNegative"}, [](Details& d) { d.totalCapacity = -1; }, rootAlone},
        DetailsRow{{"TotalLargest"}, [](Details& d) { d.totalCapacity = most; }, both},
        DetailsRow{{"TotalUnknown"}, [](Details& d) { d.totalCapacity.reset(); }, rootAlone},
        DetailsRow{{"AllUnknown"}, [](Details& d) { d = {}; }, rootAlone},
        DetailsRow{{"AvailableZero"}, [](Details& d) { d.availableCapacity = 0; }, both},
        DetailsRow{{"AvailableNegative"}, [](Details& d) { d.availableCapacity = -1; }, absent},
        DetailsRow{{"AvailableSmallest"}, [](Details& d) { d.availableCapacity = least; }, absent},
        DetailsRow{{"AvailableUnknown"}, [](Details& d) { d.availableCapacity.reset(); }, absent},
        DetailsRow{{"InternalUnknown"}, [](Details& d) { d.isInternal.reset(); }, absent},
        DetailsRow{{"RemovableUnknown"}, [](Details& d) { d.isRemovable.reset(); }, absent},
        DetailsRow{{"ReadOnlyUnknown"}, [](Details& d) { d.isReadOnly.reset(); }, absent},
        DetailsRow{{"NameUnknown"}, [](Details& d) { d.name.reset(); }, both},
        DetailsRow{{"TotalZeroComesBeforeUnknownFlags"},
                   [](Details& d) { d = {{}, 0, {}, {}, {}, {}}; },
                   rootAlone}),
    rowName<DetailsRow>);

TEST_P(VolumeDetails, DecideOverTheVolumeAndTheList) {
    volumes.add("/", "Root");
    GetParam().change(volumes.add("/data", "Data").details);
    EXPECT_EQ(paths(), GetParam().paths);
}

TEST_F(StorageReaderTest, MoreAvailableThanTotalIsListedAsTheTotal) {
    auto& details = volumes.add("/", "Root").details;
    details.totalCapacity = 1000;
    details.availableCapacity = 1001;
    const auto list = reader.read();
    ASSERT_TRUE(list);
    EXPECT_EQ(list->front().availableBytes, 1000U);
}

TEST_F(StorageReaderTest, AnIncompleteReadKeepsWhatWasListed) {
    volumes.add("/", "Root");
    volumes.add("/data", "Data");
    ASSERT_THAT(paths(), ElementsAre("/", "/data"));
    volumes.at("/data").details.isInternal.reset();
    ASSERT_THAT(paths(), ElementsAre("absent"));
    volumes.at("/data").classification = {};
    EXPECT_THAT(paths(), ElementsAre("absent")) << "/data is still one of the last list";
}

struct NameRow : NamedRow {
    MountedVolumes::Volume volume;
    std::optional<std::string> said;
    std::string shown;
};

class VolumeName : public StorageReaderTest, public testing::WithParamInterface<NameRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, VolumeName,
    testing::Values(NameRow{{"ItsOwn"}, {"/mnt/data", "data"}, "My Data", "My Data"},
                    NameRow{
                        {"LastComponentWithoutOne"}, {"/mnt/data", "data"}, std::nullopt, "data"},
                    NameRow{{"PathWithoutAComponent"}, {"/", ""}, std::nullopt, "/"},
                    NameRow{{"PathForAnEmptyName"}, {"/mnt/data", "data"}, "", "/mnt/data"},
                    NameRow{{"NotUTF8"}, {"/mnt/data", "data"}, "Caf\xE9", "Caf\xEF\xBF\xBD"}),
    rowName<NameRow>);

TEST_P(VolumeName, IsTheBestThereIs) {
    volumes.add("/x", GetParam().said).volume = GetParam().volume;
    const auto list = reader.read();
    ASSERT_TRUE(list);
    EXPECT_EQ(list->front().name, GetParam().shown);
}

TEST_F(StorageReaderTest, APathThatIsNotUTF8IsShownWithItsBytesAndStillRecognised) {
    volumes.add("/", "Root");
    volumes.add("/mnt/Caf\xE9", {});
    ASSERT_THAT(paths(), ElementsAre("/", "/mnt/Caf\\xE9"));
    volumes.at("/mnt/Caf\xE9").classification = {};
    EXPECT_THAT(paths(), ElementsAre("absent"));
}

TEST_F(StorageReaderTest, TwoPathsThatDifferOnlyInBytesThatAreNoTextStayTwo) {
    volumes.add("/", "Root");
    volumes.add("/mnt/Caf\xE9", {});
    volumes.add("/mnt/Caf\xE8", {});
    ASSERT_THAT(paths(), ElementsAre("/", "/mnt/Caf\\xE9", "/mnt/Caf\\xE8"));
}

TEST_F(StorageReaderTest, AccentedNamesAreWhereTheirLettersAre) {
    for (const char* name : {"Zeta", "\u00C9lan", "Foto", "Eden"})
        volumes.add(std::string("/") + name, name);
    EXPECT_THAT(paths(), ElementsAre("/Eden", "/\u00C9lan", "/Foto", "/Zeta"));
}

TEST_F(StorageReaderTest, TheRootComesFirstEvenWhenItsNameSortsLast) {
    volumes.add("/a", "Aardvark");
    volumes.add("/", "Zebra").details.isInternal = false;
    EXPECT_THAT(paths(), ElementsAre("/", "/a"));
}

TEST_F(StorageReaderTest, InternalVolumesComeBeforeTheOthers) {
    volumes.add("/a", "A").details.isInternal = false;
    volumes.add("/z", "Z");
    volumes.add("/", "Root");
    EXPECT_THAT(paths(), ElementsAre("/", "/z", "/a"));
}

TEST_F(StorageReaderTest, NamesAreOrderedByTheNumbersInThem) {
    for (const char* name : {"Disk 10", "Disk 9", "disk 2", "Disk 1"})
        volumes.add(std::string("/") + name, name);
    EXPECT_THAT(paths(), ElementsAre("/Disk 1", "/disk 2", "/Disk 9", "/Disk 10"));
}

TEST_F(StorageReaderTest, VolumesOfOneNameStayInThePlatformsOrder) {
    for (const char* path : {"/c", "/a", "/b"})
        volumes.add(path, "Same");
    EXPECT_THAT(paths(), ElementsAre("/c", "/a", "/b"));
}

TEST(StorageReader, ListsTheSimulatedMachines) {
    const auto laptop = StorageReader(SimulatedMachine::laptop()).read();
    ASSERT_TRUE(laptop);
    ASSERT_EQ(laptop->size(), 1U);
    EXPECT_EQ(laptop->front().path, "/");
    const auto desktop = StorageReader(SimulatedMachine::desktop()).read();
    ASSERT_TRUE(desktop);
    EXPECT_EQ(desktop->size(), 15U);
    EXPECT_EQ((*desktop)[4].name, "Archive 4");
    EXPECT_EQ(StorageReader(SimulatedMachine::broken()).read(), std::nullopt);
}

}  // namespace
}  // namespace vantor::storage_reader_test

#include "platform/macos/storage/mac_mounted_volumes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::mac_mounted_volumes_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

class MacMountedVolumesTest : public FakeDarwinTest {
  protected:
    FakeDarwin::Volume& add(const std::string& path, const std::string& lastPathComponent) {
        return darwin.volumes.emplace_back(FakeDarwin::Volume{
            objects.text(path),
            objects.text(lastPathComponent),
            {{"NSURLVolumeIsLocalKey", objects.boolean(true)},
             {"NSURLVolumeIsBrowsableKey", objects.boolean(true)},
             {"NSURLVolumeNameKey", objects.text("Macintosh HD")},
             {"NSURLVolumeTotalCapacityKey", objects.integer(994'662'584'320)},
             {"NSURLVolumeAvailableCapacityKey", objects.integer(512'110'190'592)},
             {"NSURLVolumeIsInternalKey", objects.boolean(true)},
             {"NSURLVolumeIsRemovableKey", objects.boolean(false)},
             {"NSURLVolumeIsReadOnlyKey", objects.boolean(true)}},
            false});
    }

    static std::vector<std::string> pathsOf(
        const std::optional<std::vector<MountedVolumes::Volume>>& list) {
        if (!list) return {"no answer"};
        std::vector<std::string> paths;
        for (const auto& volume : *list)
            paths.push_back(volume.path);
        return paths;
    }

    static void readAll(MacMountedVolumes& volumes) {
        const auto list = volumes.mountedVolumes();
        if (!list) return;
        for (const auto& volume : *list) {
            volumes.classification(volume);
            volumes.details(volume);
        }
    }

    FakeObjects& objects = darwin.objects;
};

TEST_F(MacMountedVolumesTest, ListsVolumesWithTheirValues) {
    add("/", "/");
    add("/Volumes/Stick", "Stick").values["NSURLVolumeNameKey"] = nullptr;
    MacMountedVolumes volumes(darwin.frameworks());
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    ASSERT_EQ(list->size(), 2u);
    EXPECT_EQ((*list)[0].path, "/");
    EXPECT_EQ((*list)[1].path, "/Volumes/Stick");
    EXPECT_EQ((*list)[1].lastPathComponent, "Stick");
    const auto [isLocal, isBrowsable] = volumes.classification(list->front());
    EXPECT_THAT(isLocal, Optional(true));
    EXPECT_THAT(isBrowsable, Optional(true));
    const auto details = volumes.details(list->front());
    EXPECT_THAT(details.name, Optional(std::string("Macintosh HD")));
    EXPECT_THAT(details.totalCapacity, Optional(994'662'584'320));
    EXPECT_THAT(details.availableCapacity, Optional(512'110'190'592));
    EXPECT_THAT(details.isInternal, Optional(true));
    EXPECT_THAT(details.isRemovable, Optional(false));
    EXPECT_THAT(details.isReadOnly, Optional(true));
    EXPECT_EQ(volumes.details(list->back()).name, std::nullopt);
}

TEST_F(MacMountedVolumesTest, AsksAVolumeNoMoreThanItsReaderDoes) {
    add("/Volumes/dead server", "dead server");
    MacMountedVolumes volumes(darwin.frameworks());
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    EXPECT_THAT(darwin.askedOfVolumes, IsEmpty());
    volumes.classification(list->front());
    EXPECT_THAT(darwin.askedOfVolumes, ElementsAre("/Volumes/dead server NSURLVolumeIsLocalKey "
                                                   "NSURLVolumeIsBrowsableKey"));
    darwin.askedOfVolumes.clear();
    volumes.details(list->front());
    EXPECT_THAT(darwin.askedOfVolumes,
                ElementsAre("/Volumes/dead server NSURLVolumeNameKey "
                            "NSURLVolumeTotalCapacityKey NSURLVolumeAvailableCapacityKey "
                            "NSURLVolumeIsInternalKey NSURLVolumeIsRemovableKey "
                            "NSURLVolumeIsReadOnlyKey"));
}

TEST_F(MacMountedVolumesTest, TellsNoVolumeFromNoAnswer) {
    MacMountedVolumes volumes(darwin.frameworks());
    EXPECT_THAT(volumes.mountedVolumes(), Optional(IsEmpty()));
    darwin.enumerationFails = true;
    EXPECT_EQ(volumes.mountedVolumes(), std::nullopt);
}

TEST_F(MacMountedVolumesTest, LoseOneEntryThatCannotBeReadAndNoOther) {
    add("/", "/");
    add("/Volumes/Broken", "Broken");
    add("/Volumes/Stick", "Stick");
    darwin.unreadableEntries = {1, 3};
    MacMountedVolumes volumes(darwin.frameworks());
    for (int pass = 0; pass < 3; ++pass)
        EXPECT_THAT(pathsOf(volumes.mountedVolumes()), ElementsAre("/", "/Volumes/Stick"));
}

TEST_F(MacMountedVolumesTest, AskAVolumeOnceMoreWhoseEntryCannotBeReadForAMoment) {
    add("/", "/");
    add("/Volumes/Stick", "Stick");
    MacMountedVolumes volumes(darwin.frameworks());
    volumes.mountedVolumes();
    darwin.unreadableEntries = {1};
    const auto list = volumes.mountedVolumes();
    EXPECT_THAT(pathsOf(list), ElementsAre("/", "/Volumes/Stick"));
    EXPECT_THAT(volumes.details(list->back()).totalCapacity, Optional(994'662'584'320));
    EXPECT_THAT(pathsOf(volumes.mountedVolumes()), ElementsAre("/")) << "it stays unreadable";
    darwin.unreadableEntries.clear();
    EXPECT_THAT(pathsOf(volumes.mountedVolumes()), ElementsAre("/", "/Volumes/Stick"));
}

TEST_F(MacMountedVolumesTest, HaveNoAnswerWhereTheEnumerationComesToNoEnd) {
    add("/", "/");
    darwin.enumerationHasNoEnd = true;
    MacMountedVolumes volumes(darwin.frameworks());
    EXPECT_EQ(volumes.mountedVolumes(), std::nullopt);
}

TEST_F(MacMountedVolumesTest, KnowsNothingOfAVolumeThatIsNotListedAnyMore) {
    add("/Volumes/Stick", "Stick");
    MacMountedVolumes volumes(darwin.frameworks());
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    const auto stick = list->front();
    darwin.volumes.clear();
    volumes.mountedVolumes();
    EXPECT_EQ(volumes.classification(stick).isLocal, std::nullopt);
    EXPECT_EQ(volumes.details(stick).totalCapacity, std::nullopt);
}

TEST_F(MacMountedVolumesTest, KnowsNothingWhereTheQueryFails) {
    add("/", "/").failsQueries = true;
    MacMountedVolumes volumes(darwin.frameworks());
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    EXPECT_EQ(volumes.classification(list->front()).isBrowsable, std::nullopt);
    const auto details = volumes.details(list->front());
    EXPECT_FALSE(details.name || details.totalCapacity || details.availableCapacity ||
                 details.isInternal || details.isRemovable || details.isReadOnly);
}

TEST_F(MacMountedVolumesTest, KnowsNoValueOfTheWrongKind) {
    add("/", "/");
    MacMountedVolumes volumes(darwin.frameworks());
    auto& values = darwin.volumes.front().values;
    const auto original = values;
    for (const auto& [key, right] : original) {
        for (const Ref other : objectsOtherThan(right->kind)) {
            values = original;
            values[key] = other;
            const auto list = volumes.mountedVolumes();
            ASSERT_TRUE(list);
            const auto [isLocal, isBrowsable] = volumes.classification(list->front());
            EXPECT_EQ(isLocal.has_value(), key != "NSURLVolumeIsLocalKey");
            EXPECT_EQ(isBrowsable.has_value(), key != "NSURLVolumeIsBrowsableKey");
            const auto d = volumes.details(list->front());
            EXPECT_EQ(d.name.has_value(), key != "NSURLVolumeNameKey");
            EXPECT_EQ(d.totalCapacity.has_value(), key != "NSURLVolumeTotalCapacityKey");
            EXPECT_EQ(d.availableCapacity.has_value(), key != "NSURLVolumeAvailableCapacityKey");
            EXPECT_EQ(d.isInternal.has_value(), key != "NSURLVolumeIsInternalKey");
            EXPECT_EQ(d.isRemovable.has_value(), key != "NSURLVolumeIsRemovableKey");
            EXPECT_EQ(d.isReadOnly.has_value(), key != "NSURLVolumeIsReadOnlyKey");
        }
    }
}

TEST_F(MacMountedVolumesTest, ListsNoVolumeWithoutAPath) {
    add("/", "/");
    add("", "");
    MacMountedVolumes volumes(darwin.frameworks());
    EXPECT_THAT(pathsOf(volumes.mountedVolumes()), ElementsAre("/"));
    darwin.volumes.back().path = nullptr;
    EXPECT_THAT(pathsOf(volumes.mountedVolumes()), ElementsAre("/"));
    darwin.volumes.back().path = objects.integer(3);
    EXPECT_THAT(pathsOf(volumes.mountedVolumes()), ElementsAre("/"));
    darwin.volumes.back().path = objects.text("/Volumes/Stick");
    darwin.volumes.back().lastPathComponent = nullptr;
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    EXPECT_EQ(list->back().lastPathComponent, "");
}

TEST_F(MacMountedVolumesTest, LosesTheOneValueWhoseKeyIsMissing) {
    add("/", "/");
    const auto frameworks = darwin.frameworks();
    frameworks->coreFoundation.volumeIsRemovableKey = nullptr;
    MacMountedVolumes volumes(frameworks);
    const auto list = volumes.mountedVolumes();
    ASSERT_TRUE(list);
    const auto details = volumes.details(list->front());
    EXPECT_EQ(details.isRemovable, std::nullopt);
    EXPECT_THAT(details.isReadOnly, Optional(true));
}

TEST_F(MacMountedVolumesTest, SurvivesEachFunctionMissing) {
    add("/", "/");
    withEachFunctionMissing([](const std::shared_ptr<const Frameworks>& some) {
        MacMountedVolumes volumes(some);
        readAll(volumes);
    });
}

TEST_F(MacMountedVolumesTest, SurvivesEachCallFailing) {
    add("/", "/");
    add("/Volumes/Stick", "Stick");
    withEachCallFailing(30, [](const std::shared_ptr<const Frameworks>& some) {
        MacMountedVolumes volumes(some);
        readAll(volumes);
    });
}

TEST_F(MacMountedVolumesTest, KeepsTheVolumesOfTheLastReadAlone) {
    add("/", "/");
    add("/Volumes/Stick", "Stick");
    MacMountedVolumes volumes(darwin.frameworks());
    manyTimes([&] { readAll(volumes); }, 2);
}

}  // namespace
}  // namespace vantor::mac_mounted_volumes_test

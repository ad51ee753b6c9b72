#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/linux/storage/hanging_volume_world.h"
#include "support/named_row.h"

/// Volumes that hang, and what the list of them says meanwhile.
namespace vantor::hanging_volume_test {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;

class HangingVolume : public HangingVolumeWorld {};

TEST_F(HangingVolume, FromTheStartLeavesAllOthersListed) {
    mount(root + stick + pool);
    fileSystems->hang("/media/stick");
    EXPECT_THAT(list(), ElementsAre(Pair("/", 600), Pair("/srv/pool", 70)));
}

TEST_F(HangingVolume, LaterOnIsListedWithItsLastFigures) {
    mount(root + stick + pool);
    EXPECT_THAT(list(), SizeIs(3));
    fileSystems->hang("/media/stick");
    say("/media/stick", 40);
    say("/srv/pool", 60);
    for (int pass = 0; pass < 3; ++pass) {
        EXPECT_THAT(list(),
                    ElementsAre(Pair("/", 600), Pair("/media/stick", 50), Pair("/srv/pool", 60)));
    }
}

TEST_F(HangingVolume, HasItsNewFiguresWhenItAnswersAgain) {
    mount(root + stick);
    fileSystems->hang("/media/stick");
    EXPECT_THAT(list(), SizeIs(1));
    say("/media/stick", 40);
    fileSystems->goOn("/media/stick");
    EXPECT_TRUE(listBecomes({{"/", 600}, {"/media/stick", 40}}));
    say("/media/stick", 30);
    EXPECT_THAT(list(), ElementsAre(Pair("/", 600), Pair("/media/stick", 30)));
}

TEST_F(HangingVolume, IsAskedAndWaitedForOnceBeforeItAnswers) {
    mount(root + stick);
    fileSystems->hang("/media/stick");
    list();
    fileSystems->waitUntilAsked("/media/stick", 1);
    for (int pass = 0; pass < 10; ++pass)
        list();
    EXPECT_EQ(fileSystems->questions("/media/stick"), 1);
    EXPECT_EQ(waits["/media/stick"], 1);
    EXPECT_EQ(fileSystems->questions("/"), 11);
}

TEST_F(HangingVolume, IsListedByALateAnswerThoughTheNextIsLateToo) {
    mount(root + stick);
    fileSystems->hang("/media/stick");
    list();
    fileSystems->waitUntilAsked("/media/stick", 1);
    say("/media/stick", 40);
    fileSystems->answerThoseWaiting("/media/stick");
    EXPECT_TRUE(listBecomes({{"/", 600}, {"/media/stick", 40}}));
    fileSystems->waitUntilAsked("/media/stick", 2);
    EXPECT_THAT(list(), SizeIs(2));
    EXPECT_EQ(fileSystems->questions("/media/stick"), 2);
}

TEST_F(HangingVolume, ThatFailsIsLeftOut) {
    mount(root + stick);
    EXPECT_THAT(list(), SizeIs(2));
    fileSystems->say("/media/stick", std::nullopt);
    EXPECT_THAT(list(), ElementsAre(Pair("/", 600)));
}

struct Successor : NamedRow {
    std::string line;
};

class VolumeMountedInstead : public HangingVolume, public testing::WithParamInterface<Successor> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, VolumeMountedInstead,
    testing::Values(
        Successor{{"UnderANewNumber"}, "5 1 8:17 / /media/stick rw - fuseblk /dev/sdb1 rw\n"},
        Successor{{"FromAnotherDevice"}, "2 1 8:33 / /media/stick rw - fuseblk /dev/sdb1 rw\n"},
        Successor{{"OfAnotherType"}, "2 1 8:17 / /media/stick rw - fuse.exfat /dev/sdb1 rw\n"},
        Successor{{"FromAnotherSource"}, "2 1 8:17 / /media/stick rw - fuseblk /dev/sdc1 rw\n"}),
    rowName<Successor>);

TEST_P(VolumeMountedInstead, HasNotTheFiguresOfTheOneBefore) {
    mount(root + stick);
    EXPECT_THAT(list(), SizeIs(2));
    fileSystems->hang("/media/stick");
    mount(root + GetParam().line);
    EXPECT_THAT(list(), ElementsAre(Pair("/", 600)));
    fileSystems->goOn("/media/stick");
    EXPECT_TRUE(listBecomes({{"/", 600}, {"/media/stick", 50}}));
}

TEST_F(HangingVolume, HasNotTheFiguresOfTheOneBeforeWhoseAnswerIsLate) {
    mount(root + stick);
    fileSystems->hang("/media/stick");
    list();
    fileSystems->waitUntilAsked("/media/stick", 1);
    mount(root + "5 1 8:33 / /media/stick rw - fuseblk /dev/sdc1 rw\n");
    list();
    fileSystems->waitUntilAsked("/media/stick", 2);
    say("/media/stick", 40);
    fileSystems->goOn("/media/stick");
    EXPECT_TRUE(listBecomes({{"/", 600}, {"/media/stick", 40}}));
}

TEST_F(HangingVolume, IsForgottenOnceItIsNotMounted) {
    mount(root + stick);
    EXPECT_THAT(list(), SizeIs(2));
    fileSystems->hang("/media/stick");
    mount(root);
    EXPECT_THAT(list(), SizeIs(1));
    mount(root + stick);
    EXPECT_THAT(list(), ElementsAre(Pair("/", 600)));
}

// A damaged moment of the table is no end of a mount.
TEST_F(HangingVolume, IsRememberedWhenTheTableCannotBeReadForOnce) {
    mount(root + stick);
    EXPECT_THAT(list(), SizeIs(2));
    fileSystems->hang("/media/stick");
    tree.removeProc("self/mountinfo");
    EXPECT_EQ(reader.read(), std::nullopt);
    mount(root + stick);
    EXPECT_THAT(list(), SizeIs(2));
}

TEST_F(HangingVolume, MayBeAPoolOrAnEncryptedFolderOfThisMachine) {
    mount(root + pool + vault);
    const auto volumesNow = read();
    ASSERT_THAT(volumesNow, SizeIs(3));
    for (const VolumeStats& volume : volumesNow) {
        EXPECT_TRUE(volume.isInternal) << volume.path;
        EXPECT_FALSE(volume.isRemovable) << volume.path;
    }
    EXPECT_EQ(volumesNow[1].name, "pool");
    EXPECT_EQ(volumesNow[2].name, "vault");
}

TEST_F(HangingVolume, MayBeADiskBelowOneThatHangs) {
    const std::string below = "6 3 8:33 / /srv/pool/disk rw - ext4 /dev/sdc1 rw\n";
    mount(root + pool + below);
    say("/srv/pool/disk", 20);
    EXPECT_THAT(list(), SizeIs(3));
    fileSystems->hang("/srv/pool");
    fileSystems->hang("/srv/pool/disk");
    say("/", 500);
    for (int pass = 0; pass < 3; ++pass) {
        EXPECT_THAT(list(),
                    ElementsAre(Pair("/", 500), Pair("/srv/pool", 70), Pair("/srv/pool/disk", 20)));
    }
    fileSystems->waitUntilAsked("/srv/pool/disk", 2);
    EXPECT_EQ(fileSystems->questions("/srv/pool/disk"), 2);
}

}  // namespace
}  // namespace vantor::hanging_volume_test

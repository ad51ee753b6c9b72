#include "app/tray/qt_status_bar.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QDBusMetaType>
#include <QGuiApplication>
#include <QScreen>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/session/instance_world.h"
#include "app/tray/qt_status_bar_fixture.h"
#include "support/event_patience.h"
#include "support/fake_notifier_tray.h"
#include "ui/rendering.h"

namespace vantor::qt_status_bar_test {
namespace {

using namespace std::chrono_literals;
using Manner = FakeNotifierTray::Manner;

TEST_F(QtStatusBarTest, ATrayThatIsThereHasTheItem) {
    startTray();
    start();
    EXPECT_FALSE(bar->isAvailable()) << "nobody has answered yet";
    ASSERT_TRUE(becomesAvailable());
    EXPECT_EQ(tray->items().size(), 1);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(*embedded, 0);
}

TEST_F(QtStatusBarTest, HoweverLateATrayOfTheBusComesItHasTheItem) {
    start();
    ASSERT_TRUE(looksOften());
    EXPECT_FALSE(bar->isAvailable());
    startTray();
    ASSERT_TRUE(becomesAvailable());
    EXPECT_EQ(tray->items().size(), 1);
}

TEST_F(QtStatusBarTest, HoweverLateATrayOfTheDisplayComesItHasTheIcon) {
    start();
    ASSERT_TRUE(looksOften());
    EXPECT_EQ(*embedded, 0);
    hasEmbedding = true;
    ASSERT_TRUE(becomesAvailable());
    EXPECT_EQ(*embedded, 1);
}

TEST_F(QtStatusBarTest, ATrayOfTheDisplayHasTheIconBeforeItIsLookedForAgain) {
    hasEmbedding = true;
    start(1h);
    ASSERT_TRUE(becomesAvailable());
    EXPECT_EQ(*embedded, 1);
}

TEST_F(QtStatusBarTest, WithoutABusTheTrayOfTheDisplayIsThereFromTheStart) {
    hasEmbedding = true;
    start(1h, false);
    EXPECT_TRUE(bar->isAvailable());
    EXPECT_EQ(*embedded, 1);
}

TEST_F(QtStatusBarTest, ATrayOfTheDisplayThatComesAndGoesIsNoticedAtOnce) {
    start(1h);
    ASSERT_TRUE(handleEventsUntil([this] { return looks > 0; }));
    hasEmbedding = true;
    embeddingChanged();
    ASSERT_TRUE(becomesAvailable());
    EXPECT_EQ(*embedded, 1);
    hasEmbedding = false;
    embeddingChanged();
    ASSERT_TRUE(becomesUnavailable());
    EXPECT_EQ(*embedded, 0);
}

TEST_F(QtStatusBarTest, ATrayOfTheDisplayThatHasTheIconIsLookedForRarely) {
    hasEmbedding = true;
    start(1ms, true, 1h);
    ASSERT_TRUE(becomesAvailable());
    letTimePass();
    const int before = looks;
    letTimePass();
    EXPECT_EQ(looks, before);
}

TEST_F(QtStatusBarTest, ATrayOfTheBusThatHasTheItemIsLookedForRarely) {
    startTray();
    start(1ms, true, 1h);
    ASSERT_TRUE(becomesAvailable());
    letTimePass();
    const int before = tray->looks();
    letTimePass();
    EXPECT_EQ(tray->looks(), before);
}

TEST_F(QtStatusBarTest, AServiceThatNothingShowsYetIsLookedForOften) {
    startTray(Manner::hostless);
    start(1ms, true, 1h);
    EXPECT_TRUE(handleEventsUntil([this] { return tray->looks() >= manyLooks; }));
}

TEST_F(QtStatusBarTest, OnceEmbeddedTheIconStaysWhereItIs) {
    hasEmbedding = true;
    start();
    ASSERT_TRUE(becomesAvailable());
    startTray();
    ASSERT_TRUE(looksOften());
    EXPECT_EQ(*embedded, 1);
    EXPECT_TRUE(tray->items().isEmpty());
    hasEmbedding = false;
    ASSERT_TRUE(hasItem()) << "the other one is left";
    EXPECT_EQ(*embedded, 0);
    EXPECT_TRUE(becomesAvailable());
}

TEST_F(QtStatusBarTest, AServiceThatNothingShowsIsNoTray) {
    startTray(Manner::hostless);
    start();
    ASSERT_TRUE(looksOften());
    EXPECT_FALSE(bar->isAvailable());
    EXPECT_TRUE(tray->items().isEmpty());
}

TEST_F(QtStatusBarTest, AHostThatComesAndGoesIsNoticedAtOnce) {
    startTray(Manner::hostless);
    start(1h);
    ASSERT_TRUE(handleEventsUntil([this] { return looks > 0; }));
    tray->setHost(true);
    ASSERT_TRUE(becomesAvailable());
    EXPECT_EQ(tray->items().size(), 1);
    tray->setHost(false);
    EXPECT_TRUE(becomesUnavailable());
}

TEST_F(QtStatusBarTest, ATrayThatIsLostAndComesBackHasTheItemAgain) {
    startTray();
    start();
    ASSERT_TRUE(becomesAvailable());
    tray.reset();
    ASSERT_TRUE(becomesUnavailable());
    ASSERT_TRUE(looksOften());
    EXPECT_FALSE(bar->isAvailable());
    startTray();
    ASSERT_TRUE(becomesAvailable());
    EXPECT_EQ(tray->items().size(), 1);
}

TEST_F(QtStatusBarTest, ATrayThatIsRestartedInAMomentHasTheItemAgain) {
    startTray();
    start();
    ASSERT_TRUE(becomesAvailable());
    startTray();
    ASSERT_TRUE(hasItem());
    EXPECT_TRUE(becomesAvailable());
}

TEST_F(QtStatusBarTest, ATrayOfTheBusThatIsLostIsFollowedByThatOfTheDisplay) {
    startTray();
    start();
    ASSERT_TRUE(becomesAvailable());
    hasEmbedding = true;
    tray.reset();
    EXPECT_TRUE(handleEventsUntil([this] { return *embedded == 1; }));
    EXPECT_TRUE(bar->isAvailable());
}

class LyingTray : public QtStatusBarTest, public testing::WithParamInterface<Manner> {};

INSTANTIATE_TEST_SUITE_P(Manners, LyingTray, testing::Values(Manner::refusing, Manner::ignoring));

TEST_P(LyingTray, IsNoTrayAndTheNextOneIs) {
    startTray(GetParam());
    start();
    ASSERT_TRUE(handleEventsUntil([this] { return tray->looks() > manyLooks; }));
    EXPECT_FALSE(bar->isAvailable());
    EXPECT_EQ(changes, 0);
    startTray();
    ASSERT_TRUE(becomesAvailable());
    EXPECT_EQ(tray->items().size(), 1);
}

class UnusualTray : public QtStatusBarTest, public testing::WithParamInterface<Manner> {};

INSTANTIATE_TEST_SUITE_P(Manners, UnusualTray,
                         testing::Values(Manner::undescribed, Manner::discreet));

TEST_P(UnusualTray, HasTheItemAllTheSame) {
    startTray(GetParam());
    start();
    ASSERT_TRUE(becomesAvailable());
    EXPECT_EQ(tray->items().size(), 1);
}

TEST_F(QtStatusBarTest, ATrayThatReadsTheItemHasItWhateverItCallsIt) {
    startTray(Manner::misnaming);
    start(200ms);
    ASSERT_TRUE(hasItem());
    EXPECT_FALSE(bar->isAvailable());
    tray->properties();
    EXPECT_TRUE(becomesAvailable());
}

}  // namespace
}  // namespace vantor::qt_status_bar_test

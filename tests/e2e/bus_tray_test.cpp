#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <cstdlib>
#include <optional>

#include "app/tray/notifier_item.h"
#include "support/event_patience.h"
#include "support/fake_notifier_tray.h"

#include "e2e/tray_fixture.h"

/// The program and a tray of the session's bus.
namespace vantor::bus_tray_test {
namespace {

using Manner = FakeNotifierTray::Manner;

class BusTray : public ProgramInATray {
  protected:
    void SetUp() override {
        ProgramInATray::SetUp();
        address_ = desktop_.startSessionBus();
        ASSERT_FALSE(address_.isEmpty()) << "no session bus";
    }
    void startTray(Manner manner = Manner::honest) { tray_.emplace(address_, manner); }
    /// Waits until the program knows, too, that the tray has its item: what is done before that is
    /// done without a tray. It learns it from a list, and answers a question after that.
    bool hasItem() {
        const auto isKnown = [this] { return !tray_->items().isEmpty() && tray_->listings() > 0; };
        return handleEventsUntil(isKnown, patience) &&
               tray_->property(QStringLiteral("Title")).isValid();
    }
    void startWithItem() {
        startTray();
        start();
        ASSERT_TRUE(hasItem()) << "no item on the bus";
    }
    /// After the program's start, without a tray.
    void passSeconds(int seconds) {
        QElapsedTimer clock;
        clock.start();
        handleEventsUntil([&] { return clock.hasExpired(seconds * 1000); }, patience);
        ASSERT_TRUE(program_->isRunning());
    }
    void movePointer(QPoint place) {
        desktop_.run(
            QStringLiteral("xdotool"),
            {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
    }
    /// The panel's place once it is open, which is at the middle of the item or at the edge.
    void expectPanelAt(QPoint place) {
        ASSERT_TRUE(eventually([this] { return hasDrawnPopover(); }, patience)) << "no panel";
        const QRect area = popover();
        EXPECT_LE(std::abs(area.center().x() - place.x()), 4) << area.x() << ',' << area.y();
        const bool isBelow = area.top() > place.y() && area.top() < place.y() + 20;
        const bool isAbove = area.bottom() < place.y() && area.bottom() > place.y() - 20;
        EXPECT_TRUE(isBelow || isAbove) << area.x() << ',' << area.y();
    }
    void expectThatThePanelLeadsBack() {
        tray_->activate({1000, 850});
        ASSERT_TRUE(eventually([this] { return hasDrawnPopover(); }, patience)) << "no panel";
        desktop_.key(QStringLiteral("Return"));
        EXPECT_TRUE(eventually([this] { return !isHidden(); }, patience));
    }

    QString address_;
    std::optional<FakeNotifierTray> tray_;
};

TEST_F(BusTray, ItsItemHasTitleIconsAndMenuAndLeadsBack) {
    startWithItem();
    EXPECT_EQ(tray_->property(QStringLiteral("Title")).toString(), QStringLiteral("Vantor"));
    const auto icons = qdbus_cast<QList<BusPixmap>>(tray_->property(QStringLiteral("IconPixmap")));
    EXPECT_EQ(icons.size(), 6);
    EXPECT_EQ(tray_->menu().children.size(), 11);
    closeIntoTheTray();
    EXPECT_TRUE(tray_->choose(QStringLiteral("Open Dashboard")));
    EXPECT_TRUE(eventually([this] { return !isHidden(); }, patience));
}

TEST_F(BusTray, QuitInTheMenuEndsTheProgram) {
    startWithItem();
    closeIntoTheTray();
    EXPECT_TRUE(tray_->choose(QStringLiteral("Quit")));
    ASSERT_TRUE(program_->waitForEnd(patience));
    EXPECT_EQ(program_->exitStatus(), 0);
}

TEST_F(BusTray, ThePanelOpensWhereTheItemWasPressed) {
    startWithItem();
    movePointer({200, 300});
    tray_->activate({1000, 850});
    expectPanelAt({1000, 850});
    desktop_.key(QStringLiteral("Escape"));
    ASSERT_TRUE(eventually([this] { return !hasPopover(); }, patience));
    tray_->activate({0, 0});
    expectPanelAt({200, 300});
}

TEST_F(BusTray, ATrayThatComesFiveSecondsLateHasTheItem) {
    start();
    passSeconds(5);
    startTray();
    ASSERT_TRUE(hasItem());
    closeIntoTheTray();
    expectThatThePanelLeadsBack();
}

TEST_F(BusTray, ClosedBeforeTheTrayIsThereItIsFoundInTheTrayLater) {
    start();
    closeIntoTheTray();
    passSeconds(5);
    startTray();
    ASSERT_TRUE(hasItem());
    EXPECT_TRUE(isHidden());
    expectThatThePanelLeadsBack();
}

TEST_F(BusTray, ATrayThatIsRestartedHasTheItemAgain) {
    startWithItem();
    closeIntoTheTray();
    tray_.reset();
    startTray();
    ASSERT_TRUE(hasItem());
    EXPECT_TRUE(isHidden()) << "it was away too short to matter";
    expectThatThePanelLeadsBack();
}

TEST_F(BusTray, WithATrayThatIsGoneForGoodTheWindowComesBack) {
    startWithItem();
    closeIntoTheTray();
    tray_.reset();
    EXPECT_TRUE(eventually([this] { return !isHidden(); }, patience));
}

TEST_F(BusTray, ATrayThatTakesNoItemsLeavesAWayBackAndTheNextOneHasTheItem) {
    startTray(Manner::refusing);
    start();
    passSeconds(3);
    closeIntoTheTray();
    {
        RunningProgram second(desktop_);
        EXPECT_TRUE(second.waitForEnd(patience));
    }
    EXPECT_TRUE(eventually([this] { return !isHidden(); }, patience)) << "nothing leads back";
    tray_.reset();
    startTray();
    EXPECT_TRUE(hasItem());
}

TEST_F(BusTray, ATrayThatDoesNotDescribeItselfHasTheItem) {
    startTray(Manner::undescribed);
    start();
    ASSERT_TRUE(hasItem());
    closeIntoTheTray();
    expectThatThePanelLeadsBack();
}

TEST_F(BusTray, WithoutOneTheTrayOfTheDisplayIsUsedEvenAfterFiveSeconds) {
    start();
    passSeconds(5);
    closeIntoTheTray();
    ASSERT_TRUE(desktop_.startTray());
    const QRect area = Desktop::trayArea(screen);
    ASSERT_TRUE(
        eventually([&] { return countColor(desktop_.picture(), area, Qt::white) > 8; }, patience));
    EXPECT_TRUE(isHidden());
    desktop_.clickAt(area.center() + QPoint(6, 0));
    ASSERT_TRUE(eventually([this] { return hasDrawnPopover(); }, patience));
}

}  // namespace
}  // namespace vantor::bus_tray_test

#include <gtest/gtest.h>

#include <QTest>

#include <chrono>

#include "app/window/launch_stabilizer_view.h"
#include "platform/simulated/fake_clock.h"
#include "platform/simulated/fake_main_loop.h"
#include "ui/components/make_child.h"

namespace vantor::launch_stabilizer_test {
namespace {

using namespace std::chrono_literals;

class LaunchStabilizer : public testing::Test {
  protected:
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    QWidget window;
    std::vector<bool> resizes;

    LaunchStabilizerView* stabilize(QWidget* view) {
        return MainWindowLaunchStabilizer(
            loop, [this](bool isActive) { resizes.push_back(isActive); }, view);
    }
    void turn(int times) {
        for (int i = 0; i < times; ++i)
            loop->runPosted();
    }
    static void resizeAsUser(QWidget& widget, QSize size) {
        QResizeEvent event(size, widget.size());
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&widget, &event);
    }
    void advance(std::chrono::milliseconds by) {
        clock->wind(by);
        while (loop->runDueTimer()) {
        }
    }
};

TEST_F(LaunchStabilizer, HidesTheWindowUntilItsFirstLayoutsHaveRun) {
    LaunchStabilizerView* const view = stabilize(&window);
    EXPECT_EQ(window.windowOpacity(), 0);
    EXPECT_EQ(window.minimumSize(), QSize(720, 560));
    turn(1);
    EXPECT_EQ(window.windowOpacity(), 0);
    turn(1);
    EXPECT_EQ(window.windowOpacity(), 1);
    EXPECT_FALSE(view->isRevealing());
}

TEST_F(LaunchStabilizer, RestoresTheOpacityThatTheWindowHad) {
    window.setWindowOpacity(0.5);
    LaunchStabilizerView* const view = stabilize(&window);
    EXPECT_NEAR(view->originalAlphaValue(), 0.5, 0.01);
    turn(2);
    EXPECT_NEAR(window.windowOpacity(), 0.5, 0.01);
}

TEST_F(LaunchStabilizer, AnInvisibleWindowIsRevealedWhole) {
    window.setWindowOpacity(0);
    LaunchStabilizerView* const view = stabilize(&window);
    EXPECT_EQ(view->originalAlphaValue(), 1);
    turn(2);
    EXPECT_EQ(window.windowOpacity(), 1);
}

TEST_F(LaunchStabilizer, MovingIntoTheSameWindowTwiceDoesNotHideItAgain) {
    auto* const inner = makeChild<QWidget>(&window);
    LaunchStabilizerView* const view = stabilize(&window);
    turn(2);
    view->setParent(inner);
    EXPECT_EQ(window.windowOpacity(), 1);
    EXPECT_FALSE(view->isRevealing());
}

TEST_F(LaunchStabilizer, AnotherWindowIsStabilisedAndTheFormerOneRestored) {
    QWidget other;
    window.setWindowOpacity(0.75);
    LaunchStabilizerView* const view = stabilize(&window);
    view->setParent(&other);
    EXPECT_NEAR(window.windowOpacity(), 0.75, 0.01);
    EXPECT_EQ(other.windowOpacity(), 0);
    EXPECT_EQ(view->stabilizedWindow(), &other);
    turn(2);
    EXPECT_EQ(other.windowOpacity(), 1);
}

TEST_F(LaunchStabilizer, TakenOutOfItsWindowItRestoresIt) {
    const std::unique_ptr<LaunchStabilizerView> view(stabilize(&window));
    view->setParent(nullptr);
    EXPECT_EQ(window.windowOpacity(), 1);
    EXPECT_EQ(view->stabilizedWindow(), nullptr);
    turn(3);
    EXPECT_EQ(window.windowOpacity(), 1);
}

TEST_F(LaunchStabilizer, AWindowThatGoesBeforeItIsRevealedHarmsNothing) {
    auto brief = std::make_unique<QWidget>();
    stabilize(brief.get());
    brief.reset();
    turn(3);
}

TEST_F(LaunchStabilizer, TellsWhenTheUserBeginsAndEndsToResize) {
    stabilize(&window);
    turn(2);
    resizeAsUser(window, {800, 600});
    resizeAsUser(window, {810, 610});
    EXPECT_EQ(resizes, std::vector<bool>{true});
    advance(100ms);
    resizeAsUser(window, {820, 620});
    advance(100ms);
    EXPECT_EQ(resizes, std::vector<bool>{true});
    advance(60ms);
    EXPECT_EQ(resizes, (std::vector<bool>{true, false}));
}

TEST_F(LaunchStabilizer, ResizingByTheProgramIsNoLiveResize) {
    stabilize(&window);
    turn(2);
    QResizeEvent event({800, 600}, window.size());
    QCoreApplication::sendEvent(&window, &event);
    EXPECT_TRUE(resizes.empty());
}

TEST_F(LaunchStabilizer, ALiveResizeEndsWithItsWindow) {
    const std::unique_ptr<LaunchStabilizerView> view(stabilize(&window));
    turn(2);
    resizeAsUser(window, {800, 600});
    view->setParent(nullptr);
    EXPECT_EQ(resizes, (std::vector<bool>{true, false}));
}

}  // namespace
}  // namespace vantor::launch_stabilizer_test

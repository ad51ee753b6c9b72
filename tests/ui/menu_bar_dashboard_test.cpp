#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "ui/cut_texts.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/dashboard_world.h"
#include "ui/gestures.h"
#include "ui/menu_bar/menu_bar_dashboard_view.h"
#include "ui/menu_bar/modern_menu_bar_dashboard_host.h"
#include "ui/symbols.h"
#include "ui/views_world.h"

namespace vantor::menu_bar_dashboard_test {
namespace {

using testing::IsEmpty;
using Status = MenuBarDashboard::Status;

class MenuBarDashboardTest : public testing::Test {
  protected:
    ViewsWorld world;
    int opened = 0;
    int quits = 0;
    std::unique_ptr<MenuBarDashboardView> view = make();

    std::unique_ptr<MenuBarDashboardView> make() {
        return std::make_unique<MenuBarDashboardView>(
            MenuBarDashboardView::Environment{world.monitor, [this] { ++quits; }},
            [this] { ++opened; });
    }
    void open() {
        view->setVisible(true);
        view->resize(view->sizeHint());
        settleEvents();
    }
    std::vector<std::string> figures() const {
        return {utf8(view->cpu().shown().value), utf8(view->memory().shown().value),
                utf8(view->download().tile().value), utf8(view->upload().tile().value)};
    }
    std::array<CapsuleButtonView*, 4> actions() const {
        return {&view->openButton(), &view->pauseButton(), &view->refreshButton(),
                &view->quitButton()};
    }
};

TEST_F(MenuBarDashboardTest, BeforeTheFirstCommitThereAreDashesInsteadOfNumbers) {
    open();
    EXPECT_EQ(figures(), (std::vector<std::string>{"—", "—", "—", "—"}));
    EXPECT_TRUE(std::isnan(view->cpu().shown().fraction)) << "an empty bar is no zero";
    EXPECT_EQ(view->cpu().accessibleFraction(), std::nullopt);
    EXPECT_EQ(utf8(view->status().accessibleValueText()), "Collecting live data…");
}

TEST_F(MenuBarDashboardTest, ASectionThatHasNotBeenReadYetHasNoNumberEither) {
    DashboardState state = ViewsWorld::committed();
    state.revisions.memory = 0;
    state.revisions.network = 0;
    world.commit(state);
    open();
    EXPECT_EQ(figures(), (std::vector<std::string>{"42%", "—", "—", "—"}));
    EXPECT_EQ(utf8(view->status().accessibleValueText()), "Live");
}

TEST_F(MenuBarDashboardTest, ShowsLoadsAsSharesAndRatesInTheirColours) {
    open();
    world.commit(ViewsWorld::committed());
    EXPECT_EQ(view->cpu().shown(), (MenuMetric{QStringLiteral("CPU"), QStringLiteral("42%"), 0.42,
                                               VantorTheme::cyan()}));
    EXPECT_EQ(view->memory().shown(), (MenuMetric{QStringLiteral("Memory"), QStringLiteral("44%"),
                                                  7.0 / 16, VantorTheme::pink()}));
    EXPECT_EQ(view->download().tile(),
              (SpeedTile{QStringLiteral("Download"), QStringLiteral("1.25 MB/s"),
                         QStringLiteral("arrow.down"), VantorTheme::green()}));
    EXPECT_EQ(view->upload().tile(),
              (SpeedTile{QStringLiteral("Upload"), QStringLiteral("64 KB/s"),
                         QStringLiteral("arrow.up"), VantorTheme::orange()}));
}

TEST_F(MenuBarDashboardTest, TheDotIsGreenWhenLiveAndOrangeWhenPaused) {
    open();
    EXPECT_EQ(view->status().size(), QSize(8, 8));
    EXPECT_EQ(view->status().color().alpha(), 0);
    world.commit(ViewsWorld::committed());
    EXPECT_EQ(view->status().color(), VantorTheme::green());
    world.pause(true);
    EXPECT_EQ(view->status().color(), VantorTheme::orange());
    EXPECT_EQ(utf8(view->status().accessibleValueText()), "Paused");
    EXPECT_EQ(utf8(view->status().toolTip()), "Paused");
}

TEST_F(MenuBarDashboardTest, ActionsHaveTheirTitlesAndSymbols) {
    const std::vector<std::pair<std::string, std::string>> agreed{
        {"Open Dashboard", "square.grid.2x2"},
        {"Pause", "pause.fill"},
        {"Refresh", "arrow.clockwise"},
        {"Quit", "power"}};
    for (std::size_t i = 0; i < agreed.size(); ++i) {
        EXPECT_EQ(utf8(actions()[i]->text()), agreed[i].first);
        EXPECT_EQ(utf8(actions()[i]->systemImage()), agreed[i].second);
        EXPECT_TRUE(Symbols::exists(actions()[i]->systemImage()));
    }
}

TEST_F(MenuBarDashboardTest, ActionsAreRunByMouse) {
    open();
    click(view->openButton());
    EXPECT_EQ(opened, 1);
    click(view->pauseButton());
    EXPECT_TRUE(world.monitor->isPaused());
    click(view->refreshButton());
    EXPECT_GT(world.queues->runWaiting(), 0u) << "readings have been asked for";
    click(view->quitButton());
    EXPECT_EQ(quits, 1);
}

TEST_F(MenuBarDashboardTest, ActionsAreRunByKey) {
    open();
    pressKey(view->openButton(), Qt::Key_Return);
    EXPECT_EQ(opened, 1);
    pressKey(view->pauseButton(), Qt::Key_Space);
    EXPECT_TRUE(world.monitor->isPaused());
    pressKey(view->refreshButton(), Qt::Key_Enter);
    EXPECT_GT(world.queues->runWaiting(), 0u);
    pressKey(view->quitButton(), Qt::Key_Return);
    EXPECT_EQ(quits, 1);
}

TEST_F(MenuBarDashboardTest, TabGoesThroughTheActionsFromTheFirst) {
    open();
    view->activateWindow();
    view->setFocus();
    settleEvents();
    for (CapsuleButtonView* action : actions()) {
        EXPECT_EQ(QApplication::focusWidget(), action) << utf8(action->text());
        pressKey(*QApplication::focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(MenuBarDashboardTest, PausingTurnsTheButtonIntoResumeAndBack) {
    open();
    click(view->pauseButton());
    EXPECT_EQ(utf8(view->pauseButton().text()), "Resume");
    EXPECT_EQ(utf8(view->pauseButton().systemImage()), "play.fill");
    click(view->pauseButton());
    EXPECT_EQ(utf8(view->pauseButton().text()), "Pause");
    EXPECT_FALSE(world.monitor->isPaused());
}

TEST_F(MenuBarDashboardTest, WithoutAnActionOpenIsDisabledAndTheFocusBeginsAtPause) {
    MenuBarDashboardView other({world.monitor, {}});
    EXPECT_FALSE(other.openButton().isEnabled());
    EXPECT_EQ(other.focusProxy(), &other.pauseButton());
    click(other.openButton());
    EXPECT_EQ(opened, 0);
}

TEST(MenuBarDashboard, PausingInThePanelIsFollowedByTheDashboardsHeader) {
    DashboardWorld world;
    world.open();
    MenuBarDashboardView panel({world.monitor, {}});
    panel.setVisible(true);
    settleEvents();
    click(panel.pauseButton());
    EXPECT_EQ(utf8(world.view->header().pauseButton().text()), "Resume");
    EXPECT_EQ(utf8(world.view->header().status().accessibleValueText()), "Paused");
    click(world.view->header().pauseButton());
    EXPECT_EQ(utf8(panel.pauseButton().text()), "Pause");
    panel.setVisible(false);
}

TEST(MenuBarDashboard, APauseBeforeTheFirstCommitIsAPause) {
    EXPECT_EQ(MenuBarDashboard::of({}, true).status, Status::paused);
    EXPECT_EQ(MenuBarDashboard::of({}, false).status, Status::waiting);
    EXPECT_EQ(MenuBarDashboard::of(ViewsWorld::committed(), false).status, Status::live);
}

TEST(ModernMenuBarDashboardHost, OpensTheWindowOfTheDashboardByItsIdentifier) {
    const ViewsWorld world;
    std::vector<std::string> opened;
    ModernMenuBarDashboardHost host({world.monitor, {}}, [&](const QString& identifier) {
        opened.push_back(utf8(identifier));
    });
    click(host.view().openButton());
    click(host.view().openButton());
    EXPECT_EQ(opened, (std::vector<std::string>{"dashboard", "dashboard"}));
    EXPECT_EQ(host.sizeHint(), host.view().sizeHint());
}

TEST_F(MenuBarDashboardTest, HiddenItFollowsNothingAndShownItIsUpToDate) {
    open();
    world.commit(ViewsWorld::committed());
    view->setVisible(false);
    DashboardState state = ViewsWorld::committed();
    state.snapshot.cpu.totalUsage = 0.9;
    world.commit(state);
    world.pause(true);
    EXPECT_EQ(figures()[0], "42%") << "nothing is worked out for nobody";
    EXPECT_EQ(utf8(view->pauseButton().text()), "Pause");
    view->setVisible(true);
    EXPECT_EQ(figures()[0], "90%");
    EXPECT_EQ(utf8(view->pauseButton().text()), "Resume");
}

TEST_F(MenuBarDashboardTest, OnlyWhatChangedIsPainted) {
    open();
    world.commit(ViewsWorld::committed());
    settleEvents();
    PaintCount all;
    all.watch(*view);
    PaintCount cpu;
    view->cpu().installEventFilter(&cpu);
    world.commit(ViewsWorld::committed());
    settleEvents();
    EXPECT_EQ(all.take(), 0) << "the same figures";
    DashboardState state = ViewsWorld::committed();
    state.snapshot.cpu.totalUsage = 0.9;
    world.commit(state);
    settleEvents();
    EXPECT_EQ(cpu.take(), 1);
    EXPECT_EQ(all.take(), 2) << "the tile and the ground behind it";
}

TEST_F(MenuBarDashboardTest, IsOf330By250PointsAndNothingIsCut) {
    EXPECT_EQ(view->sizeHint(), QSize(330, 250));
    open();
    DashboardState state = ViewsWorld::committed();
    state.snapshot.cpu.totalUsage = 1;
    state.snapshot.network.downloadBytesPerSecond = 888.88e9;
    state.snapshot.network.uploadBytesPerSecond = 888.88e9;
    world.commit(state);
    world.pause(true);
    settleEvents();
    EXPECT_EQ(utf8(view->download().tile().value), "888.88 GB/s");
    EXPECT_THAT(cutTexts(*view), IsEmpty());
}

TEST_F(MenuBarDashboardTest, GrowsWithTheFontAndNothingIsCut) {
    const LargerFont larger(1.5);
    view = make();
    EXPECT_GE(view->sizeHint().width(), 330 * 3 / 2);
    open();
    world.commit(ViewsWorld::committed());
    world.pause(true);
    settleEvents();
    EXPECT_THAT(cutTexts(*view), IsEmpty());
}

TEST_F(MenuBarDashboardTest, FollowsAFontThatChangesWhileItIsOpen) {
    open();
    const LargerFont larger(1.5);
    settleEvents();
    view->resize(view->sizeHint());
    settleEvents();
    EXPECT_GT(view->width(), 330);
    EXPECT_THAT(cutTexts(*view), IsEmpty());
}

TEST_F(MenuBarDashboardTest, MirrorsWhereTheLanguageRunsTheOtherWay) {
    view->setLayoutDirection(Qt::RightToLeft);
    open();
    EXPECT_GT(view->cpu().x(), view->memory().x());
    EXPECT_LT(view->status().x(), view->width() / 2);
    world.commit(ViewsWorld::committed());
    const QImage tile = rendered(view->cpu(), view->cpu().size());
    const double y = view->cpu().height() - 11;
    const QColor bar = VantorTheme::faded(VantorTheme::cyan(), 0.92);
    EXPECT_GT(pixelsLike(tile, QRectF(80, y - 2, 60, 4), tile.pixelColor(110, int(y))), 100);
    EXPECT_GT(qAlpha(tile.pixel(110, int(y))), 200) << "the bar grows from the right";
    EXPECT_LT(qAlpha(tile.pixel(20, int(y))), 100) << utf8(bar.name());
}

TEST(MenuMetric, StandsOnAFaintTileAndItsBarHasItsShare) {
    MenuMetricView view({QStringLiteral("CPU"), QStringLiteral("50%"), 0.5, VantorTheme::cyan()});
    const QSize size(124, view.sizeHint().height());
    const QImage image = rendered(view, size);
    const QColor background =
        VantorTheme::faded(VantorTheme::primaryLabel(ColorScheme::dark), 0.06);
    EXPECT_TRUE(isNear(colorAt(image, 120, size.height() / 2.0), background));
    EXPECT_EQ(colorAt(image, 0.5, 0.5).alpha(), 0) << "its corners are round";
    const double y = size.height() - 11;
    EXPECT_GT(qAlpha(image.pixel(55, int(y))), 200) << "just short of the middle of 12 to 112";
    EXPECT_LT(qAlpha(image.pixel(69, int(y))), 100);
    QAccessibleInterface* element = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(element->role(), QAccessible::ProgressBar);
    EXPECT_EQ(utf8(element->text(QAccessible::Name)), "CPU");
    EXPECT_EQ(utf8(element->text(QAccessible::Value)), "50%");
    EXPECT_DOUBLE_EQ(element->valueInterface()->currentValue().toDouble(), 0.5);
}

}  // namespace
}  // namespace vantor::menu_bar_dashboard_test

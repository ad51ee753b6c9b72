#include "ui/dashboard/dashboard_header.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>

#include <stdexcept>
#include <string>
#include <vector>

#include "ui/dashboard/horizontal_fit.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::dashboard_header_test {
namespace {

using Form = VantorHorizontalFit::Form;

class DashboardHeaderViewTest : public testing::Test {
  protected:
    std::vector<std::string> calls;
    std::unique_ptr<DashboardHeaderView> view = make(std::nullopt, true);

    std::unique_ptr<DashboardHeaderView> make(std::optional<double> breakpoint, bool hasExport) {
        const auto note = [this](const char* name) {
            return [this, name] { calls.push_back(name); };
        };
        DashboardHeader header;
        header.onRefreshIntervalChange = [this](double interval) {
            calls.push_back("interval " + std::to_string(interval));
        };
        header.onTogglePause = note("pause");
        header.onRefresh = note("refresh");
        if (hasExport) header.onExport = note("export");
        header.onQuit = note("quit");
        return std::make_unique<DashboardHeaderView>(header, "Live Linux performance intelligence",
                                                     breakpoint);
    }

    void openAt(int width) {
        view->setVisible(true);
        view->resize(width, view->heightForWidth(width));
        settleEvents();
    }
    std::array<CapsuleButtonView*, 4> buttons() {
        return {&view->pauseButton(), &view->refreshButton(), &view->exportButton(),
                &view->quitButton()};
    }
    std::vector<QWidget*> controls() {
        return {&view->status(),        &view->interval(),     &view->pauseButton(),
                &view->refreshButton(), &view->exportButton(), &view->quitButton()};
    }
    IdentityView& identity() {
        for (QWidget* child : view->findChildren<QWidget*>()) {
            if (auto* found = dynamic_cast<IdentityView*>(child)) return *found;
        }
        throw std::logic_error("the header shows no identity");
    }
    QRect placeOf(QWidget& part) { return {part.mapTo(view.get(), QPoint()), part.size()}; }
};

TEST_F(DashboardHeaderViewTest, ButtonsHaveTheirTitlesAndSymbols) {
    const std::vector<std::pair<std::string, std::string>> agreed{{"Pause", "pause.fill"},
                                                                  {"Refresh", "arrow.clockwise"},
                                                                  {"Export", "square.and.arrow.up"},
                                                                  {"Quit", "power"}};
    for (std::size_t i = 0; i < agreed.size(); ++i) {
        EXPECT_EQ(utf8(buttons()[i]->text()), agreed[i].first);
        EXPECT_EQ(utf8(buttons()[i]->systemImage()), agreed[i].second);
    }
}

TEST_F(DashboardHeaderViewTest, ButtonsRunTheirCallbacksByMouse) {
    for (CapsuleButtonView* button : buttons())
        click(*button);
    EXPECT_EQ(calls, (std::vector<std::string>{"pause", "refresh", "export", "quit"}));
}

TEST_F(DashboardHeaderViewTest, ButtonsRunTheirCallbacksByKey) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        calls.clear();
        for (CapsuleButtonView* button : buttons())
            pressKey(*button, key);
        EXPECT_EQ(calls, (std::vector<std::string>{"pause", "refresh", "export", "quit"})) << key;
    }
}

TEST_F(DashboardHeaderViewTest, TabGoesThroughTheControlsInTheirOrder) {
    openAt(1200);
    view->activateWindow();
    settleEvents();
    view->interval().setFocus();
    for (CapsuleButtonView* button : buttons()) {
        pressKey(*QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), button) << utf8(button->text());
    }
}

TEST_F(DashboardHeaderViewTest, ExportIsDisabledWhileItHasNoAction) {
    EXPECT_TRUE(view->exportButton().isEnabled());
    view = make(std::nullopt, false);
    EXPECT_FALSE(view->exportButton().isEnabled());
    click(view->exportButton());
    EXPECT_TRUE(calls.empty());
    EXPECT_TRUE(view->pauseButton().isEnabled());
}

TEST_F(DashboardHeaderViewTest, MenuHasTheFiveIntervals) {
    std::vector<std::string> titles;
    for (const QAction* action : view->interval().menu().actions())
        titles.push_back(utf8(action->text()));
    EXPECT_EQ(titles, (std::vector<std::string>{"0.5 s", "1 s", "2 s", "5 s", "10 s"}));
}

TEST_F(DashboardHeaderViewTest, ChoosingAnIntervalCallsBackWithIt) {
    for (QAction* action : view->interval().menu().actions())
        action->trigger();
    EXPECT_EQ(calls, (std::vector<std::string>{"interval 0.500000", "interval 1.000000",
                                               "interval 2.000000", "interval 5.000000",
                                               "interval 10.000000"}));
}

TEST_F(DashboardHeaderViewTest, TheMenuOpensByMouseAndByKeyAndTicksTheCurrentInterval) {
    openAt(1200);
    QMenu& menu = view->interval().menu();
    view->show(2, false);
    click(view->interval());
    EXPECT_TRUE(menu.isVisible());
    std::vector<std::string> ticked;
    for (const QAction* action : menu.actions()) {
        if (action->isChecked()) ticked.push_back(utf8(action->text()));
    }
    EXPECT_EQ(ticked, (std::vector<std::string>{"2 s"}));
    menu.close();
    pressKey(view->interval(), Qt::Key_Return);
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}

TEST_F(DashboardHeaderViewTest, AnIntervalOutsideTheMenuTicksNone) {
    view->show(2, false);
    view->show(3, false);
    for (const QAction* action : view->interval().menu().actions()) {
        EXPECT_FALSE(action->isChecked()) << utf8(action->text());
    }
    EXPECT_EQ(utf8(view->interval().text()), "3 s");
}

TEST_F(DashboardHeaderViewTest, PauseChangesPillButtonAndSymbol) {
    view->show(0.5, true);
    EXPECT_EQ(utf8(view->status().accessibleValueText()), "Paused");
    EXPECT_EQ(utf8(view->pauseButton().text()), "Resume");
    EXPECT_EQ(utf8(view->pauseButton().systemImage()), "play.fill");
    view->show(0.5, false);
    EXPECT_EQ(utf8(view->status().accessibleValueText()), "Live");
    EXPECT_EQ(utf8(view->pauseButton().text()), "Pause");
    EXPECT_EQ(utf8(view->pauseButton().systemImage()), "pause.fill");
}

TEST_F(DashboardHeaderViewTest, PillHasAGreenDotAndAnOrangeOneWhilePaused) {
    StatusPillView& pill = view->status();
    const QRectF whole(0, 0, 200, 60);
    const QImage live = rendered(pill, pill.sizeHint());
    EXPECT_GT(pixelsLike(live, whole, VantorTheme::green()), 30);
    EXPECT_EQ(pixelsLike(live, whole, VantorTheme::orange()), 0);
    pill.show(true);
    const QImage image = rendered(pill, pill.sizeHint());
    EXPECT_EQ(pixelsLike(image, whole, VantorTheme::green()), 0);
    EXPECT_GT(pixelsLike(image, whole, VantorTheme::orange()), 30);
    EXPECT_TRUE(isNear(colorAt(image, 6, pill.height() / 2.0),
                       VantorTheme::faded(VantorTheme::primaryLabel(ColorScheme::dark), 0.07)));
}

TEST_F(DashboardHeaderViewTest, NothingMovesWhenTheUserPausesOrChangesTheInterval) {
    openAt(1200);
    std::vector<QRect> before;
    for (QWidget* control : controls())
        before.push_back(placeOf(*control));
    view->show(10, true);
    settleEvents();
    std::vector<QRect> after;
    for (QWidget* control : controls())
        after.push_back(placeOf(*control));
    EXPECT_EQ(before, after);
}

TEST_F(DashboardHeaderViewTest, ControlsStandInTheirOrderInOneLine) {
    openAt(1200);
    ASSERT_EQ(view->fit().form(), Form::primary);
    const auto parts = controls();
    for (std::size_t i = 1; i < parts.size(); ++i) {
        EXPECT_EQ(placeOf(*parts[i]).left() - placeOf(*parts[i - 1]).right() - 1, 8) << i;
        EXPECT_EQ(placeOf(*parts[i]).center().y(), placeOf(*parts[0]).center().y()) << i;
    }
    EXPECT_EQ(placeOf(*parts.back()).right(), 1200 - 16 - 1);
}

TEST_F(DashboardHeaderViewTest, IsStackedBelow900OnAnOlderSystem) {
    view = make(900, true);
    openAt(899);
    EXPECT_EQ(view->fit().form(), Form::fallback);
    EXPECT_GT(placeOf(view->status()).top(), placeOf(identity()).bottom());
    EXPECT_EQ(placeOf(view->status()).left(), 16);
}

TEST_F(DashboardHeaderViewTest, IsARowAt1000OnAnOlderSystem) {
    view = make(900, true);
    openAt(1000);
    EXPECT_EQ(view->fit().form(), Form::primary);
}

TEST_F(DashboardHeaderViewTest, TheNarrowestRowOfAnOlderSystemHoldsAllControls) {
    view = make(900, true);
    openAt(900 + 2 * 16);
    ASSERT_EQ(view->fit().form(), Form::primary);
    for (QWidget* control : controls()) {
        EXPECT_TRUE(view->rect().contains(placeOf(*control)));
        EXPECT_EQ(placeOf(*control).center().y(), placeOf(view->status()).center().y());
    }
}

TEST_F(DashboardHeaderViewTest, AModernSystemChoosesByWhatFits) {
    openAt(1200);
    const int fitting = view->fit().sizeHint().width() + 2 * 16;
    openAt(fitting);
    EXPECT_EQ(view->fit().form(), Form::primary);
    openAt(fitting - 1);
    EXPECT_EQ(view->fit().form(), Form::fallback);
}

TEST_F(DashboardHeaderViewTest, EverythingStaysVisibleHoweverNarrow) {
    for (const int width : {680, 500, 360}) {
        openAt(width);
        for (QWidget* control : controls()) {
            EXPECT_TRUE(view->rect().contains(placeOf(*control))) << width;
        }
    }
}

TEST_F(DashboardHeaderViewTest, SaysNameSubtitleStatusAndInterval) {
    EXPECT_EQ(utf8(identity().accessibleLabel()), "Vantor");
    EXPECT_EQ(utf8(identity().accessibleValueText()), "Live Linux performance intelligence");
    EXPECT_EQ(utf8(view->status().accessibleLabel()), "Status");
    EXPECT_EQ(utf8(view->interval().accessibleName()), "Refresh interval 0.5 s");
}

TEST_F(DashboardHeaderViewTest, IdentityTileRunsFromCyanToPurple) {
    const QImage image = rendered(identity(), QSize(300, 46));
    EXPECT_TRUE(isNear(colorAt(image, 6, 6), VantorTheme::cyan(), 40));
    EXPECT_TRUE(isNear(colorAt(image, 40, 40), VantorTheme::purple(), 40));
    EXPECT_EQ(colorAt(image, 0.5, 0.5).alpha(), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(46, 0, 13, 46)), 0) << "the gap beside the tile";
    EXPECT_GT(pixelsLike(image, QRectF(0, 0, 46, 46), Qt::white), 10);
}

}  // namespace
}  // namespace vantor::dashboard_header_test

#include "ui/cards/core_activity.h"

#include <gtest/gtest.h>

#include <QToolTip>

#include <array>
#include <limits>
#include <vector>

#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::core_activity_test {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(CoreActivity, AnIdleCoreIsFaintCyan) {
    for (const double usage : {0.0, 0.005, 0.009999, -1.0, nan}) {
        EXPECT_EQ(CoreActivity::fill(usage), VantorTheme::faded(VantorTheme::cyan(), 0.18))
            << usage;
    }
}

TEST(CoreActivity, ABusyCoreIsGreenAndStrongerTheBusierItIs) {
    const auto opacity = [](double usage) { return CoreActivity::fill(usage).alphaF(); };
    EXPECT_NEAR(opacity(0.01), 0.5545, 1e-4);
    EXPECT_NEAR(opacity(0.5), 0.775, 1e-4);
    EXPECT_NEAR(opacity(1), 1, 1e-4);
    EXPECT_NEAR(opacity(1.5), 1, 1e-4);
    QColor opaque = CoreActivity::fill(0.01);
    opaque.setAlphaF(1);
    EXPECT_EQ(opaque, VantorTheme::green());
}

TEST(CoreActivity, HelpCountsFromOneAndSaysTheUsage) {
    EXPECT_EQ(utf8(CoreActivity::help(0, 0.123)), "Core 1: 12.3%");
    EXPECT_EQ(utf8(CoreActivity::help(255, 1)), "Core 256: 100.0%");
}

class CoreGrid : public testing::TestWithParam<std::size_t> {};

INSTANTIATE_TEST_SUITE_P(Processors, CoreGrid, testing::Values(1u, 2u, 8u, 64u, 256u));

TEST_P(CoreGrid, CellsLieWithinTheWidthAndTheHeight) {
    for (const double width : {10.0, 394.0, 644.0}) {
        const auto grid = CoreGridGeometry::make(GetParam(), width, 1);
        const QRectF whole(-1e-9, -1e-9, width + 2e-9, grid.height() + 2e-9);
        for (std::size_t i = 0; i < GetParam(); ++i) {
            EXPECT_TRUE(whole.contains(grid.cell(i))) << i << " of " << width;
            EXPECT_DOUBLE_EQ(grid.cell(i).height(), 26);
        }
    }
}

TEST_P(CoreGrid, CellsKeepFourPointsApart) {
    const auto grid = CoreGridGeometry::make(GetParam(), 394, 1);
    for (std::size_t i = 0; i < GetParam(); ++i) {
        const QRectF wider = grid.cell(i).adjusted(-1.9, -1.9, 1.9, 1.9);
        for (std::size_t other = i + 1; other < GetParam(); ++other) {
            ASSERT_FALSE(wider.intersects(grid.cell(other).adjusted(-1.9, -1.9, 1.9, 1.9)))
                << i << " and " << other;
        }
    }
}

TEST_P(CoreGrid, CellAtFindsEachCell) {
    const auto grid = CoreGridGeometry::make(GetParam(), 394, 1);
    for (std::size_t i = 0; i < GetParam(); ++i) {
        EXPECT_EQ(grid.cellAt(grid.cell(i).center(), GetParam()), i);
    }
    EXPECT_EQ(grid.cellAt({-5, 5}, GetParam()), GetParam());
    EXPECT_EQ(grid.cellAt({5, grid.height() + 5}, GetParam()), GetParam());
}

TEST_P(CoreGrid, NoCellIsNarrowerThanItsNumber) {
    EXPECT_GE(CoreGridGeometry::make(GetParam(), 394, 1).cellWidth, 24);
    EXPECT_GE(CoreGridGeometry::make(GetParam(), 394, 2).cellWidth, 48);
}

TEST_P(CoreGrid, HasNoRowTooMany) {
    const auto grid = CoreGridGeometry::make(GetParam(), 394, 1);
    const auto fitting = static_cast<std::size_t>((394 + 4) / (24 + 4));
    EXPECT_EQ(static_cast<std::size_t>(grid.rows), (GetParam() + fitting - 1) / fitting);
    const auto columns = static_cast<std::size_t>(grid.columns);
    EXPECT_GT(GetParam(), columns * static_cast<std::size_t>(grid.rows - 1));
}

TEST(CoreGridGeometry, FewProcessorsShareOneRowEvenly) {
    const auto grid = CoreGridGeometry::make(4, 400, 1);
    EXPECT_EQ(grid.rows, 1);
    EXPECT_EQ(grid.cell(0), QRectF(0, 0, 97, 26));
    EXPECT_EQ(grid.cell(3), QRectF(303, 0, 97, 26));
}

TEST(CoreGridGeometry, AGapBelongsToNoCell) {
    const auto grid = CoreGridGeometry::make(4, 400, 1);
    EXPECT_EQ(grid.cellAt({99, 10}, 4), 4u);
}

TEST(CoreGridGeometry, WithoutProcessorsOrWidthThereAreNoCells) {
    EXPECT_EQ(CoreGridGeometry::make(0, 400, 1).columns, 0);
    EXPECT_EQ(CoreGridGeometry::make(4, 0, 1).columns, 0);
    EXPECT_EQ(CoreGridGeometry::make(0, 400, 1).cell(0), QRectF());
    EXPECT_DOUBLE_EQ(CoreGridGeometry::make(0, 400, 1).height(), 26) << "the first cells' room";
}

class CoreActivityViewTest : public testing::Test {
  protected:
    CoreActivityView view;

    QImage drawn(const std::vector<double>& usage, int width = 400) {
        view.show(usage);
        return rendered(view, QSize(width, view.heightForWidth(width)));
    }
};

TEST_F(CoreActivityViewTest, DrawsAnIdleCoreFaintCyanAndOneAtAPercentGreen) {
    const QImage image = drawn({0.005, 0.01, 1});
    EXPECT_TRUE(isNear(colorAt(image, 10, 4), VantorTheme::faded(VantorTheme::cyan(), 0.18)));
    EXPECT_TRUE(isNear(colorAt(image, 145, 4), VantorTheme::faded(VantorTheme::green(), 0.5545)));
    EXPECT_TRUE(isNear(colorAt(image, 280, 4), VantorTheme::green()));
}

TEST_F(CoreActivityViewTest, CellsHaveRoundedCornersAndANumber) {
    const QImage image = drawn({1, 1});
    EXPECT_LT(colorAt(image, 0.5, 0.5).alpha(), 128);
    const QRectF number(90, 6, 20, 14);
    EXPECT_LT(pixelsLike(image, number, VantorTheme::green()), 20 * 14);
    EXPECT_EQ(pixelsLike(image, QRectF(20, 2, 50, 22), VantorTheme::green()), 50 * 22);
}

/// How wide the letters of the first cell are.
int lettersWidth(const QImage& image, int cellWidth) {
    int width = 0;
    for (int x = 3; x < cellWidth - 3; ++x) {
        if (pixelsLike(image, QRectF(x, 5, 1, 16), VantorTheme::green()) < 16) ++width;
    }
    return width;
}

TEST_F(CoreActivityViewTest, AWideCellSaysItsShareBesideItsNumber) {
    EXPECT_EQ(utf8(CoreActivity::text(2, 0.424)), "3  42%");
    const int wide = lettersWidth(drawn({1, 1}), 198);
    EXPECT_GT(wide, 20);
    const int narrow = lettersWidth(drawn(std::vector<double>(14, 1)), 24);
    EXPECT_GT(narrow, 1);
    EXPECT_LT(narrow, 12) << "the number alone";
}

TEST_F(CoreActivityViewTest, ANewShareIsPaintedWhereItIsSaid) {
    view.show(std::array{0.001, 0.001});
    view.resize(400, 26);
    view.setVisible(true);
    settleEvents();
    PaintCount paints;
    paints.watch(view);
    view.show(std::array{0.008, 0.001});
    settleEvents();
    EXPECT_EQ(paints.take(), 1);
    view.resize(40, 26);
    settleEvents();
    paints.take();
    view.show(std::array{0.001, 0.001});
    settleEvents();
    EXPECT_EQ(paints.take(), 0);
}

TEST_F(CoreActivityViewTest, GrowsByARowWhereOneIsNotEnough) {
    view.show(std::vector<double>(8, 0.5));
    EXPECT_EQ(view.heightForWidth(400), 26);
    EXPECT_EQ(view.heightForWidth(120), 2 * 26 + 4);
    view.show(std::vector<double>(256, 0.5));
    EXPECT_EQ(view.heightForWidth(394), 19 * 26 + 18 * 4);
}

TEST_F(CoreActivityViewTest, TakesMoreAndFewerProcessors) {
    drawn({0.5});
    EXPECT_EQ(view.count(), 1u);
    drawn(std::vector<double>(12, 0.5));
    EXPECT_EQ(view.count(), 12u);
    drawn({});
    EXPECT_EQ(view.count(), 0u);
    EXPECT_EQ(view.heightForWidth(400), 26);
}

TEST_F(CoreActivityViewTest, RepaintsOnlyWhatHasAnotherColour) {
    view.show(std::array{0.0, 0.5});
    view.resize(400, 26);
    view.setVisible(true);
    settleEvents();
    PaintCount paints;
    paints.watch(view);
    view.show(std::array{0.002, 0.5});  // still idle: the same colour
    settleEvents();
    EXPECT_EQ(paints.take(), 0);
    view.show(std::array{0.002, 0.9});
    settleEvents();
    EXPECT_EQ(paints.take(), 1);
}

// A picture that is cut by hundreds of pieces takes many times as long.
TEST_F(CoreActivityViewTest, FewChangedCellsAreRepaintedByThemselvesAndManyAsOneArea) {
    const auto piecesOf = [&](std::size_t changed) {
        std::vector<double> usage(128, 0.1);
        view.show(usage);
        settleEvents();
        PaintCount paints;
        paints.watch(view);
        for (std::size_t i = 0; i < changed; ++i)
            usage[2 * i] = 0.9;
        view.show(usage);
        settleEvents();
        EXPECT_EQ(paints.take(), 1);
        return paints.pieces();
    };
    view.resize(600, 200);
    view.setVisible(true);
    EXPECT_EQ(piecesOf(3), 3);
    EXPECT_EQ(piecesOf(64), 1);
}

TEST_F(CoreActivityViewTest, TellsTheNumberAndUsageOfTheCoreUnderThePointer) {
    drawn({0.123, 0.5});
    view.setVisible(true);
    settleEvents();
    hover(view, QPoint(50, 13));
    EXPECT_EQ(utf8(QToolTip::text()), "Core 1: 12.3%");
    hover(view, QPoint(350, 13));
    EXPECT_EQ(utf8(QToolTip::text()), "Core 2: 50.0%");
    QToolTip::hideText();
}

TEST_F(CoreActivityViewTest, SaysAllCores) {
    drawn({0.123, 0.5});
    EXPECT_EQ(utf8(view.accessibleLabel()), "Core Activity");
    EXPECT_EQ(utf8(view.accessibleValueText()), "Core 1: 12.3%, Core 2: 50.0%");
}

}  // namespace
}  // namespace vantor::core_activity_test

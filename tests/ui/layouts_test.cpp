#include <gtest/gtest.h>

#include "ui/dashboard/adaptive_grid.h"
#include "ui/dashboard/flow_layout.h"
#include "ui/rendering.h"

namespace vantor::layouts_test {
namespace {

/// Something of a size.
class Block : public QWidget {
  public:
    Block(QSize hint, QWidget* parent) : QWidget(parent), hint_(hint) {}
    QSize sizeHint() const override { return hint_; }
    QSize minimumSizeHint() const override { return hint_; }

  private:
    QSize hint_;
};

constexpr int outerPadding = 20;  // of the dashboard, on either side

TEST(AdaptiveColumns, AWindowOf720HasOneColumn) {
    const AdaptiveColumns columns;
    EXPECT_EQ(columns.count(720 - 2 * outerPadding), 1);
    EXPECT_DOUBLE_EQ(columns.width(720 - 2 * outerPadding), 680);
}

TEST(AdaptiveColumns, TheSecondColumnAppearsWhereTwoOf430AndTheSpacingFit) {
    const AdaptiveColumns columns;
    EXPECT_EQ(columns.count(875.99), 1);
    EXPECT_EQ(columns.count(876), 2);
    EXPECT_DOUBLE_EQ(columns.width(876), 430);
    EXPECT_EQ(columns.count(1321.99), 2);
    EXPECT_EQ(columns.count(1322), 3);
}

TEST(AdaptiveColumns, NoColumnIsWiderThan680) {
    const AdaptiveColumns columns;
    EXPECT_DOUBLE_EQ(columns.width(500), 500);
    EXPECT_DOUBLE_EQ(columns.width(800), 680);
    for (double available = 430; available < 4000; available += 13) {
        EXPECT_LE(columns.width(available), 680);
        EXPECT_GE(columns.width(available), 430);
    }
}

TEST(AdaptiveColumns, ThereIsOneColumnHoweverNarrowTheSpace) {
    const AdaptiveColumns columns;
    EXPECT_EQ(columns.count(300), 1);
    EXPECT_DOUBLE_EQ(columns.width(300), 300);
    EXPECT_EQ(columns.count(0), 1);
    EXPECT_DOUBLE_EQ(columns.width(0), 0);
    EXPECT_EQ(columns.count(-100), 1);
    EXPECT_DOUBLE_EQ(columns.width(-100), 0);
}

class AdaptiveGridTest : public testing::Test {
  protected:
    QWidget window;
    AdaptiveGridLayout* grid =
        std::make_unique<AdaptiveGridLayout>(AdaptiveColumns{}, &window).release();
    std::vector<Block*> blocks;

    void add(int height) {
        blocks.push_back(std::make_unique<Block>(QSize(100, height), &window).release());
        grid->addWidget(blocks.back());
    }
    void layOut(int width) {
        window.resize(width, 600);
        grid->setGeometry(QRect(0, 0, width, 600));
    }
};

TEST_F(AdaptiveGridTest, PlacesRowByRowAndMakesARowAsHighAsItsHighest) {
    for (const int height : {50, 80, 30})
        add(height);
    layOut(916);
    EXPECT_EQ(blocks[0]->geometry(), QRect(0, 0, 450, 80));
    EXPECT_EQ(blocks[1]->geometry(), QRect(466, 0, 450, 80));
    EXPECT_EQ(blocks[2]->geometry(), QRect(0, 96, 450, 30));
    EXPECT_EQ(grid->heightForWidth(916), 126);
}

TEST_F(AdaptiveGridTest, OneColumnStacksThem) {
    for (const int height : {50, 80})
        add(height);
    layOut(600);
    EXPECT_EQ(blocks[0]->geometry(), QRect(0, 0, 600, 50));
    EXPECT_EQ(blocks[1]->geometry(), QRect(0, 66, 600, 80));
    EXPECT_EQ(grid->heightForWidth(600), 146);
}

TEST_F(AdaptiveGridTest, ColumnsAtTheirWidestStandInTheMiddle) {
    add(50);
    layOut(800);
    EXPECT_EQ(blocks[0]->geometry(), QRect(60, 0, 680, 50));
}

TEST_F(AdaptiveGridTest, FirstIsOnTheRightWhereOneReadsFromTheRight) {
    for (const int height : {50, 50})
        add(height);
    window.setLayoutDirection(Qt::RightToLeft);
    layOut(916);
    EXPECT_EQ(blocks[0]->geometry().left(), 466);
    EXPECT_EQ(blocks[1]->geometry().left(), 0);
}

TEST_F(AdaptiveGridTest, GivesItemsBackWhenAsked) {
    add(50);
    add(60);
    EXPECT_EQ(grid->count(), 2);
    EXPECT_EQ(grid->itemAt(2), nullptr);
    EXPECT_EQ(grid->itemAt(-1), nullptr);
    EXPECT_EQ(grid->takeAt(7), nullptr);
    const std::unique_ptr<QLayoutItem> taken(grid->takeAt(0));
    EXPECT_EQ(taken->widget(), blocks[0]);
    EXPECT_EQ(grid->count(), 1);
    EXPECT_EQ(grid->itemAt(0)->widget(), blocks[1]);
}

TEST_F(AdaptiveGridTest, WithoutItemsHasNoHeight) {
    EXPECT_EQ(grid->heightForWidth(916), 0);
}

class FlowLayoutTest : public testing::Test {
  protected:
    QWidget window;
    FlowLayout* flow = std::make_unique<FlowLayout>(8, &window).release();
    std::vector<Block*> blocks;

    void SetUp() override {
        for (const QSize size : {QSize(50, 30), QSize(60, 20), QSize(40, 30)}) {
            blocks.push_back(std::make_unique<Block>(size, &window).release());
            flow->addWidget(blocks.back());
        }
    }
    void layOut(int width) { flow->setGeometry(QRect(0, 0, width, 200)); }
};

TEST_F(FlowLayoutTest, IsOneLineWhereItFitsExactly) {
    EXPECT_EQ(flow->sizeHint(), QSize(50 + 60 + 40 + 16, 30));
    layOut(166);
    EXPECT_EQ(blocks[0]->geometry(), QRect(0, 0, 50, 30));
    EXPECT_EQ(blocks[1]->geometry(), QRect(58, 5, 60, 20)) << "centred in the line";
    EXPECT_EQ(blocks[2]->geometry(), QRect(126, 0, 40, 30));
    EXPECT_EQ(flow->heightForWidth(166), 30);
}

TEST_F(FlowLayoutTest, BreaksWhereOneTooManyWouldStand) {
    layOut(165);
    EXPECT_EQ(blocks[2]->geometry(), QRect(0, 38, 40, 30));
    EXPECT_EQ(flow->heightForWidth(165), 68);
}

TEST_F(FlowLayoutTest, ALineHoldsAtLeastOneHoweverNarrow) {
    EXPECT_EQ(flow->heightForWidth(10), 30 + 8 + 20 + 8 + 30);
    EXPECT_EQ(flow->minimumSize(), QSize(60, 30));
}

TEST_F(FlowLayoutTest, RunsFromTheRightWhereOneReadsFromTheRight) {
    window.setLayoutDirection(Qt::RightToLeft);
    layOut(200);
    EXPECT_EQ(blocks[0]->geometry().left(), 150);
    EXPECT_EQ(blocks[1]->geometry().left(), 82);
}

}  // namespace
}  // namespace vantor::layouts_test

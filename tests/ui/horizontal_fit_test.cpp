#include "ui/dashboard/horizontal_fit.h"

#include <gtest/gtest.h>

#include <optional>

#include "ui/rendering.h"

namespace vantor::horizontal_fit_test {
namespace {

using Form = VantorHorizontalFit::Form;

/// Something of a size.
class Block : public QWidget {
  public:
    explicit Block(QSize hint) : hint_(hint) {}
    void grow(QSize hint) {
        hint_ = hint;
        updateGeometry();
    }
    QSize sizeHint() const override { return hint_; }
    QSize minimumSizeHint() const override { return {10, hint_.height()}; }

  private:
    QSize hint_;
};

TEST(VantorHorizontalFit, ChoosesByWhatFits) {
    EXPECT_EQ(VantorHorizontalFit::choose(500, 500, std::nullopt), Form::primary);
    EXPECT_EQ(VantorHorizontalFit::choose(499.9, 500, std::nullopt), Form::fallback);
}

TEST(VantorHorizontalFit, OlderSystemsChooseByTheBreakpointAlone) {
    EXPECT_EQ(VantorHorizontalFit::choose(900, 2000, 900), Form::primary);
    EXPECT_EQ(VantorHorizontalFit::choose(899.9, 10, 900), Form::fallback);
}

TEST(VantorHorizontalFit, BeforeTheFirstMeasurementItIsTheFallback) {
    EXPECT_EQ(VantorHorizontalFit::choose(0, 0, std::nullopt), Form::fallback);
    EXPECT_EQ(VantorHorizontalFit::choose(0, 0, 0), Form::fallback);
    EXPECT_EQ(VantorHorizontalFit::choose(0, 500, 900), Form::fallback);
}

class HorizontalFitLayout : public testing::Test {
  protected:
    Block* leading = std::make_unique<Block>(QSize(200, 40)).release();
    Block* trailing = std::make_unique<Block>(QSize(300, 30)).release();
    VantorHorizontalFit fit{leading, trailing, 24, 14, std::nullopt};

    void layOut(int width) {
        fit.setVisible(true);
        fit.resize(width, fit.heightForWidth(width));
        settleEvents();
    }
};

TEST_F(HorizontalFitLayout, RowHasOneBlockAtEitherEndCentred) {
    layOut(600);
    EXPECT_EQ(fit.form(), Form::primary);
    EXPECT_EQ(leading->geometry(), QRect(0, 0, 200, 40));
    EXPECT_EQ(trailing->geometry(), QRect(300, 5, 300, 30));
    EXPECT_EQ(fit.heightForWidth(600), 40);
}

TEST_F(HorizontalFitLayout, RowNeedsBothBlocksAndTheGap) {
    layOut(524);
    EXPECT_EQ(fit.form(), Form::primary);
    layOut(523);
    EXPECT_EQ(fit.form(), Form::fallback);
}

TEST_F(HorizontalFitLayout, FallbackStacksThem) {
    layOut(400);
    EXPECT_EQ(leading->geometry(), QRect(0, 0, 400, 40));
    EXPECT_EQ(trailing->geometry(), QRect(0, 54, 400, 30));
    EXPECT_EQ(fit.heightForWidth(400), 84);
}

TEST_F(HorizontalFitLayout, FollowsItsBlocks) {
    layOut(600);
    ASSERT_EQ(fit.form(), Form::primary);
    trailing->grow(QSize(500, 30));
    settleEvents();
    EXPECT_EQ(fit.form(), Form::fallback);
    EXPECT_EQ(trailing->geometry().top(), 54);
}

TEST_F(HorizontalFitLayout, IsMirroredWhereOneReadsFromTheRight) {
    fit.setLayoutDirection(Qt::RightToLeft);
    layOut(600);
    EXPECT_EQ(leading->geometry().left(), 400);
    EXPECT_EQ(trailing->geometry().left(), 0);
}

TEST_F(HorizontalFitLayout, CanBeMadeAsNarrowAsItsBlocksCan) {
    EXPECT_EQ(fit.minimumSizeHint().width(), 10);
    EXPECT_EQ(fit.sizeHint(), QSize(524, 40));
}

TEST(HorizontalFit, WithABreakpointARowThatDoesNotFitStaysWithinItsWidth) {
    auto* leading = std::make_unique<Block>(QSize(400, 40)).release();
    auto* trailing = std::make_unique<Block>(QSize(700, 30)).release();
    VantorHorizontalFit fit(leading, trailing, 24, 14, 900);
    fit.resize(900, 40);
    fit.setVisible(true);
    settleEvents();
    EXPECT_EQ(fit.form(), Form::primary);
    EXPECT_LE(trailing->geometry().right(), 899);
    EXPECT_GE(trailing->geometry().left(), 424);
}

}  // namespace
}  // namespace vantor::horizontal_fit_test

#include <gtest/gtest.h>

#include "ui/components/empty_state_view.h"
#include "ui/components/labeled_sparkline.h"
#include "ui/components/segmented_picker.h"
#include "ui/components/speed_tile.h"
#include "ui/components/text_line.h"
#include "ui/gestures.h"
#include "ui/rendering.h"
#include "ui/typography.h"

/// Speed tile, labelled chart, empty state, picker.
namespace vantor::small_components_test {
namespace {

SpeedTile tile() {
    return {QStringLiteral("Download"), QStringLiteral("1.25 MB/s"), QStringLiteral("arrow.down"),
            VantorTheme::green()};
}

TEST(SpeedTile, DrawsSymbolTitleAndValueOnAFaintGround) {
    SpeedTileView view(tile());
    const QSize size(180, view.sizeHint().height());
    EXPECT_GE(size.height(), 46) << "a symbol's tile of 26 and the padding";
    const QImage image = rendered(view, size);
    const QColor background =
        VantorTheme::faded(VantorTheme::primaryLabel(ColorScheme::dark), 0.045);
    EXPECT_TRUE(isNear(colorAt(image, 170, 23), background));
    EXPECT_EQ(colorAt(image, 0.5, 0.5).alpha(), 0) << "its corners are round";
    EXPECT_GT(pixelsLike(image, QRectF(10, 10, 26, 26), VantorTheme::green()), 5);
    EXPECT_GT(paintedPixels(image, QRectF(45, 10, 60, 26)), 0);
    EXPECT_EQ(utf8(view.accessibleLabel()), "Download");
    EXPECT_EQ(utf8(view.accessibleValueText()), "1.25 MB/s");
}

TEST(SpeedTile, WithoutAGroundItsSymbolStandsAtItsEdge) {
    SpeedTileView view(tile(), SpeedTileView::Background::none);
    const QSize size(180, view.sizeHint().height());
    EXPECT_LT(size.height(), SpeedTileView(tile()).sizeHint().height());
    const QImage image = rendered(view, size);
    EXPECT_EQ(paintedPixels(image, QRectF(140, 0, 40, size.height())), 0);
    EXPECT_GT(paintedPixels(image, QRectF(0, 0, 26, size.height())), 600);
}

TEST(SpeedTile, IsMirroredWhereOneReadsFromTheRight) {
    SpeedTileView view(tile());
    view.setLayoutDirection(Qt::RightToLeft);
    const QImage image = rendered(view, QSize(180, view.sizeHint().height()));
    EXPECT_GT(pixelsLike(image, QRectF(180 - 36, 10, 26, 26), VantorTheme::green()), 5);
    EXPECT_EQ(pixelsLike(image, QRectF(0, 0, 140, 46), VantorTheme::green()), 0);
}

TEST(TextLine, BeginsAtTheRightWhereOneReadsFromThere) {
    HeadingView view(QStringLiteral("Data"), Typography::headline, QFont::DemiBold);
    const QImage left = rendered(view, QSize(200, view.sizeHint().height()));
    EXPECT_EQ(paintedPixels(left, QRectF(100, 0, 100, 40)), 0);
    view.setLayoutDirection(Qt::RightToLeft);
    const QImage right = rendered(view, QSize(200, view.sizeHint().height()));
    EXPECT_EQ(paintedPixels(right, QRectF(0, 0, 100, 40)), 0);
    EXPECT_GT(paintedPixels(right, QRectF(100, 0, 100, 40)), 0);
}

TEST(SpeedTile, IsPaintedOnlyWhenItShowsSomethingElse) {
    SpeedTileView view(tile());
    view.resize(180, 46);
    view.setVisible(true);
    settleEvents();
    PaintCount paints;
    paints.watch(view);
    view.show(tile());
    settleEvents();
    EXPECT_EQ(paints.take(), 0);
    SpeedTile other = tile();
    other.value = QStringLiteral("0 B/s");
    view.show(other);
    settleEvents();
    EXPECT_EQ(paints.take(), 1);
}

TEST(LabeledSparkline, StandsUnderItsLabelAndValue) {
    LabeledSparklineView view(
        {QStringLiteral("Upload"), QStringLiteral("3 KB/s"), {1, 3, 2}, VantorTheme::orange()});
    const int text = view.sizeHint().height() - 54 - 6;
    EXPECT_GT(text, 8);
    const QImage image = rendered(view, QSize(200, view.sizeHint().height()));
    EXPECT_GT(paintedPixels(image, QRectF(0, 0, 60, text)), 0);
    EXPECT_GT(paintedPixels(image, QRectF(160, 0, 40, text)), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(0, text, 200, 5)), 0) << "the spacing";
    EXPECT_GT(pixelsLike(image, QRectF(0, text + 6, 200, 54), VantorTheme::orange()), 50);
}

TEST(LabeledSparkline, RangesOverItsOwnValues) {
    LabeledSparklineView view(
        {QStringLiteral("Upload"), {}, {500'000, 1'000'000}, VantorTheme::orange()});
    const int height = view.sizeHint().height();
    const QImage image = rendered(view, QSize(200, height));
    EXPECT_GT(pixelsLike(image, QRectF(0, height - 6, 12, 6), VantorTheme::orange()), 0);
    EXPECT_GT(pixelsLike(image, QRectF(188, height - 54, 12, 6), VantorTheme::orange()), 0);
}

TEST(EmptyState, StandsInTheMiddleAndIsAtLeastSoHigh) {
    EmptyStateView view({QStringLiteral("No Volumes"),
                         QStringLiteral("externaldrive.badge.questionmark"),
                         QStringLiteral("None was returned.")});
    EXPECT_EQ(view.heightForWidth(400), 200) << "180 and its padding";
    const QImage image = rendered(view, QSize(400, 200));
    EXPECT_GT(paintedPixels(image, QRectF(180, 40, 40, 60)), 50) << "the symbol";
    EXPECT_EQ(paintedPixels(image, QRectF(0, 0, 60, 200)), 0);
    EXPECT_EQ(utf8(view.accessibleLabel()), "No Volumes");
    EXPECT_EQ(utf8(view.accessibleValueText()), "None was returned.");
}

TEST(EmptyState, ALongMessageBreaksIntoLinesAndMakesRoom) {
    EmptyStateView view({QStringLiteral("t"), QStringLiteral("magnifyingglass"),
                         QString(QStringLiteral("word ")).repeated(150)});
    EXPECT_GT(view.heightForWidth(300), 240);
    EXPECT_GT(view.heightForWidth(300), view.heightForWidth(500));
}

TEST(EmptyState, HasRoomForEachMessageAtEachWidth) {
    const QFontMetricsF title(Typography::font(Typography::headline, QFont::DemiBold));
    const QFontMetricsF message(Typography::font(Typography::caption));
    const auto least = [&](int width, const QString& text) {
        const QRectF room(0, 0, std::min(width - 20, 420), 1e6);
        constexpr int flags = Qt::AlignHCenter | Qt::TextWordWrap | Qt::TextWrapAnywhere;
        return 34 + 10 + title.height() + 10 + message.boundingRect(room, flags, text).height();
    };
    EmptyStateView view({QStringLiteral("t"), QStringLiteral("magnifyingglass"), QString()});
    for (const auto& piece :
         {QStringLiteral("a bc "), QStringLiteral("middling words "), QString(40, u'W') + u' '}) {
        for (int pieces = 1; pieces < 60; pieces += 3) {
            const QString text = piece.repeated(pieces).trimmed();
            view.show({QStringLiteral("t"), QStringLiteral("magnifyingglass"), text});
            for (int width = 60; width <= 520; width += 46)
                ASSERT_GE(view.heightForWidth(width), least(width, text))
                    << width << ": " << utf8(text);
        }
    }
}

TEST(SegmentedPicker, TheTabKeyArrivesAtWhatIsChosen) {
    SegmentedPicker picker(QStringLiteral("Theme"),
                           {QStringLiteral("System"), QStringLiteral("Dark")}, [](int) {});
    const auto isTabStop = [&](int index) {
        return (picker.button(index).focusPolicy() & Qt::TabFocus) != 0;
    };
    EXPECT_TRUE(isTabStop(0));
    EXPECT_FALSE(isTabStop(1));
    picker.choose(1);
    EXPECT_FALSE(isTabStop(0));
    EXPECT_TRUE(isTabStop(1));
}

TEST(SegmentedPicker, ChangesByClickAndByArrowKeys) {
    std::vector<int> heard;
    SegmentedPicker picker(QStringLiteral("Sort"),
                           {QStringLiteral("CPU"), QStringLiteral("Memory")},
                           [&](int choice) { heard.push_back(choice); });
    picker.setVisible(true);
    settleEvents();
    EXPECT_EQ(picker.choice(), 0);
    click(picker.button(1));
    EXPECT_EQ(picker.choice(), 1);
    picker.button(1).setFocus();
    pressKey(picker.button(1), Qt::Key_Left);
    EXPECT_EQ(picker.choice(), 0);
    click(picker.button(0));
    EXPECT_EQ(heard, (std::vector<int>{1, 0})) << "the choice that holds already is no change";
}

TEST(SegmentedPicker, ItsChoicesAreRadioButtonsUnderItsName) {
    SegmentedPicker picker(QStringLiteral("Sort"),
                           {QStringLiteral("CPU"), QStringLiteral("Memory")}, {});
    EXPECT_EQ(utf8(picker.accessibleName()), "Sort");
    QAccessibleInterface* choice = QAccessible::queryAccessibleInterface(&picker.button(0));
    ASSERT_NE(choice, nullptr);
    EXPECT_EQ(utf8(choice->text(QAccessible::Name)), "CPU");
    EXPECT_EQ(choice->role(), QAccessible::RadioButton);
    EXPECT_TRUE(choice->state().checked);
}

}  // namespace
}  // namespace vantor::small_components_test

#include "ui/components/metric_row.h"

#include <gtest/gtest.h>

#include "ui/rendering.h"

namespace vantor::metric_row_test {
namespace {

constexpr QSize size{240, 20};

MetricRow rowWith(std::optional<QColor> color) {
    return {QStringLiteral("User"), QStringLiteral("12.5%"), color};
}

QImage drawn(const MetricRow& row) {
    MetricRowView view(row);
    return rendered(view, size);
}

TEST(MetricRowGeometry, DotIsSevenWideAndInTheMiddle) {
    const auto geometry = MetricRowGeometry::make(20, true);
    ASSERT_TRUE(geometry.dot);
    EXPECT_EQ(*geometry.dot, QRectF(0, 6.5, 7, 7));
    EXPECT_DOUBLE_EQ(geometry.labelLeft, 15);
}

TEST(MetricRowGeometry, WithoutAColourThereIsNoDotAndTheLabelLeads) {
    const auto geometry = MetricRowGeometry::make(20, false);
    EXPECT_FALSE(geometry.dot);
    EXPECT_DOUBLE_EQ(geometry.labelLeft, 0);
}

TEST(MetricRow, DrawsADotOfItsColour) {
    const QImage image = drawn(rowWith(VantorTheme::orange()));
    EXPECT_TRUE(isNear(colorAt(image, 3.5, 10), VantorTheme::orange()));
    EXPECT_GT(pixelsLike(image, QRectF(0, 6, 7, 8), VantorTheme::orange()), 20);
    EXPECT_EQ(paintedPixels(image, QRectF(8, 0, 6, 20)), 0) << "the gap between dot and label";
}

TEST(MetricRow, WithoutAColourItsLabelStartsAtTheLeadingEdge) {
    const QImage plain = drawn(rowWith(std::nullopt));
    const QImage dotted = drawn(rowWith(VantorTheme::orange()));
    EXPECT_GT(paintedPixels(plain, QRectF(0, 0, 4, 20)), 0);
    // The very label that stands behind the dot otherwise.
    const QRectF label(0, 0, 60, 20);
    EXPECT_EQ(paintedPixels(plain, label), paintedPixels(dotted, label.translated(15, 0)));
    EXPECT_EQ(pixelsLike(plain, QRectF(0, 0, 240, 20), VantorTheme::orange()), 0);
}

TEST(MetricRow, ValueEndsAtTheTrailingEdge) {
    const QImage image = drawn(rowWith(std::nullopt));
    EXPECT_GT(paintedPixels(image, QRectF(200, 0, 40, 20)), 0);
    EXPECT_GT(paintedPixels(image, QRectF(236, 0, 4, 20)), 0);
    EXPECT_EQ(paintedPixels(image, QRectF(60, 0, 120, 20)), 0);
}

TEST(MetricRow, ALabelTooLongForItsRowLeavesTheValueAlone) {
    const MetricRow wordy{QString(300, u'W'), QStringLiteral("12.5%"), std::nullopt};
    const QRectF value(206, 0, 34, 20);
    EXPECT_EQ(paintedPixels(drawn(wordy), value),
              paintedPixels(drawn(rowWith(std::nullopt)), value));
}

TEST(MetricRow, ChangingValuesOfEqualLengthDoNotMoveOrResizeIt) {
    MetricRowView view(rowWith(VantorTheme::blue()));
    const QSize before = view.sizeHint();
    view.show({QStringLiteral("User"), QStringLiteral("11.1%"), VantorTheme::blue()});
    EXPECT_EQ(view.sizeHint(), before);
    EXPECT_EQ(utf8(view.row().value), "11.1%");
}

TEST(MetricRow, SaysItsLabelAndItsValue) {
    const MetricRowView view(rowWith(VantorTheme::blue()));
    EXPECT_EQ(utf8(view.accessibleLabel()), "User");
    EXPECT_EQ(utf8(view.accessibleValueText()), "12.5%");
}

TEST(MetricRow, ALongValueIsCutBesideItsLabelAndWholeInItsHelp) {
    const QString host = QStringLiteral("a-host-with-a-very-long-name.").repeated(4);
    MetricRowView row({QStringLiteral("Hostname"), {}, std::nullopt});
    row.show({QStringLiteral("Hostname"), host, std::nullopt});
    const QSize narrow(260, row.sizeHint().height());
    const QImage cut = rendered(row, narrow);
    row.show({QStringLiteral("Hostname"), {}, std::nullopt});
    const QImage bare = rendered(row, narrow);
    const QRect label(0, 0, 60, narrow.height());
    EXPECT_EQ(cut.copy(label), bare.copy(label)) << "the label can still be read";
    row.show({QStringLiteral("Hostname"), host, std::nullopt});
    EXPECT_TRUE(row.toolTip().contains(QStringLiteral("a-host-with")));
    row.show({QStringLiteral("Hostname"), QStringLiteral("short"), std::nullopt});
    EXPECT_TRUE(row.toolTip().isEmpty());
}

}  // namespace
}  // namespace vantor::metric_row_test

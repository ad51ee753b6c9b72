#include <gtest/gtest.h>

#include <QPaintEvent>

#include <array>
#include <utility>
#include <vector>

#include "ui/cards/core_activity.h"
#include "ui/cards/process_mini_list.h"
#include "ui/cards/volume_view.h"
#include "ui/components/capsule_button.h"
#include "ui/components/dashboard_card.h"
#include "ui/components/labeled_sparkline.h"
#include "ui/components/metric_row.h"
#include "ui/components/ring_gauge.h"
#include "ui/components/speed_tile.h"
#include "ui/components/usage_bar.h"
#include "ui/explorer/filter_field.h"
#include "ui/rendering.h"

namespace vantor::mirrored_test {
namespace {

/// What is painted where, for who reads from the left and for who reads from the right.
template <class View>
std::pair<QImage, QImage> bothWays(View& view, QSize size) {
    view.setLayoutDirection(Qt::LeftToRight);
    const QImage fromLeft = rendered(view, size);
    view.setLayoutDirection(Qt::RightToLeft);
    return {fromLeft, rendered(view, size)};
}

int paintedIn(const QImage& image, double left, double right) {
    return paintedPixels(image, {left, 0, right - left, static_cast<double>(image.height())});
}

TEST(Mirrored, AMetricRowBeginsWithItsDotAtTheRight) {
    MetricRowView row({QStringLiteral("User"), QStringLiteral("5%"), VantorTheme::orange()});
    const auto [left, right] = bothWays(row, {200, 16});
    EXPECT_TRUE(isNear(colorAt(left, 3.5, 8), VantorTheme::orange()));
    EXPECT_TRUE(isNear(colorAt(right, 196.5, 8), VantorTheme::orange()));
    EXPECT_GT(paintedIn(right, 0, 20), 0) << "the value stands at the left";
    EXPECT_GT(paintedIn(right, 150, 190), 0) << "the label stands beside the dot";
    EXPECT_EQ(paintedIn(right, 60, 120), 0);
}

TEST(Mirrored, AUsageBarGrowsFromTheRight) {
    UsageBarView bar(QStringLiteral("Disk"), {0.25, VantorTheme::blue(), 8});
    const QColor fill = VantorTheme::faded(VantorTheme::blue(), 0.92);
    const auto [left, right] = bothWays(bar, {200, 8});
    EXPECT_TRUE(isNear(colorAt(left, 30, 4), fill));
    EXPECT_FALSE(isNear(colorAt(left, 170, 4), fill));
    EXPECT_TRUE(isNear(colorAt(right, 170, 4), fill));
    EXPECT_FALSE(isNear(colorAt(right, 30, 4), fill));
}

TEST(Mirrored, ACardsHeaderHasItsSymbolAtTheRight) {
    CardHeaderView header(
        {QStringLiteral("CPU"), std::nullopt, QStringLiteral("cpu"), VantorTheme::cyan()});
    const auto [left, right] = bothWays(header, {300, 28});
    EXPECT_GT(paintedIn(left, 0, 28), 28 * 20);
    EXPECT_EQ(paintedIn(left, 200, 300), 0);
    EXPECT_GT(paintedIn(right, 272, 300), 28 * 20);
    EXPECT_EQ(paintedIn(right, 0, 100), 0);
}

TEST(Mirrored, ASpeedTileHasItsSymbolAtTheRight) {
    SpeedTileView tile({QStringLiteral("Download"), QStringLiteral("1 KB/s"),
                        QStringLiteral("arrow.down"), VantorTheme::green()});
    const auto [left, right] = bothWays(tile, {240, 46});
    EXPECT_EQ(left.pixelColor(23, 12), right.pixelColor(240 - 24, 12));
    EXPECT_NE(left.pixelColor(23, 12), left.pixelColor(240 - 24, 12));
}

TEST(Mirrored, AProcessesNameStandsAtTheRightAndItsShareAtTheLeft) {
    std::vector<ProcessStats> processes(1);
    processes[0].name = SharedText("init");
    ProcessMiniListView list({QStringLiteral("Top"), processes, ProcessMiniList::Metric::cpu}, 1,
                             QStringLiteral("app.dashed"));
    const auto [left, right] = bothWays(list, list.sizeHint());
    const double across = left.width();
    EXPECT_GT(paintedIn(right, 0, 35), 0);
    EXPECT_GT(paintedIn(right, across - 40, across), 0);
    EXPECT_EQ(paintedIn(right, across / 3, across / 2), 0);
}

TEST(Mirrored, TheFirstProcessorIsAtTheRight) {
    CoreActivityView cores;
    cores.show(std::array{1.0, 0.0, 0.0, 0.0});
    const auto [left, right] = bothWays(cores, {400, 26});
    EXPECT_TRUE(isNear(colorAt(left, 10, 5), CoreActivity::fill(1)));
    EXPECT_TRUE(isNear(colorAt(right, 390, 5), CoreActivity::fill(1)));
    EXPECT_FALSE(isNear(colorAt(right, 10, 5), CoreActivity::fill(1)));
}

/// The last area of a view that was painted.
class LastPaint : public QObject {
  public:
    QRect area;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) area = static_cast<QPaintEvent*>(event)->rect();
        return false;
    }
};

TEST(Mirrored, AChangeRepaintsTheProcessorWhereItIs) {
    CoreActivityView cores;
    cores.setLayoutDirection(Qt::RightToLeft);
    cores.show(std::array{0.0, 0.0, 0.0, 0.0});
    cores.resize(400, 26);
    cores.setVisible(true);
    settleEvents();
    LastPaint paint;
    cores.installEventFilter(&paint);
    cores.show(std::array{1.0, 0.0, 0.0, 0.0});
    settleEvents();
    EXPECT_GT(paint.area.left(), 290);
    EXPECT_EQ(paint.area.right(), cores.width() - 1);
}

TEST(Mirrored, TheFiltersTextBeginsBesideItsSymbol) {
    FilterField field(QStringLiteral("Filter"));
    const int leading = field.textMargins().left();
    EXPECT_GT(leading, 20);
    field.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(field.textMargins().right(), leading);
    EXPECT_LT(field.textMargins().left(), 10);
}

TEST(Mirrored, ChartsAndRingsRunAsTimeAndClocksDo) {
    LabeledSparklineView chart({QString(), QString(), {0, 0, 0, 1}, VantorTheme::green()});
    const auto [chartLeft, chartRight] = bothWays(chart, chart.sizeHint());
    EXPECT_EQ(chartLeft, chartRight);
    RingGaugeView ring({0.25, QString(), QString(), VantorTheme::cyan()});
    const auto [ringLeft, ringRight] = bothWays(ring, ring.sizeHint());
    EXPECT_EQ(ringLeft, ringRight);
}

}  // namespace
}  // namespace vantor::mirrored_test

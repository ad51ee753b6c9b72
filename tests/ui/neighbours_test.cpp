#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLayout>
#include <QMenuBar>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "ui/cpu_samples.h"
#include "ui/dashboard_view_fixture.h"

/// What stands side by side begins and ends on the same lines.
namespace vantor::neighbours_test {
namespace {

using testing::Each;

/// How much two colours differ.
int distance(QRgb one, QRgb other) {
    return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
           std::abs(qBlue(one) - qBlue(other));
}

class Neighbours : public DashboardViewTest, public testing::WithParamInterface<double> {
  protected:
    void open(QSize size) {
        world.open(size);
        world.goLive();
        world.advance(std::chrono::seconds(5));
        DashboardState state = world.monitor->dashboardState();
        state.snapshot.processes = manyProcesses();
        for (int i = 0; i < 12; ++i)
            state.snapshot.processes.push_back(process(100 + i, "worker", 0.1));
        state.processesByCPU = state.processesByMemory = state.snapshot.processes;
        ++state.revisions.processes;
        world.monitor->dashboardStateStream().set(state);
        world.settle();
        QWidget& content = *scrollArea().widget();
        seen_ = QImage((QSizeF(content.size()) * scale()).toSize(), QImage::Format_RGB32);
        seen_.setDevicePixelRatio(scale());
        seen_.fill(Qt::black);
        content.render(&seen_);
    }
    static double scale() { return GetParam(); }

    /// In device pixels.
    QRect onPicture(QWidget& part) {
        const QRect place = placeOf(part);
        return QRectF(QPointF(place.topLeft()) * scale(), QSizeF(place.size()) * scale()).toRect();
    }

    /// The rows of `area` in which something differs from the pixel before the area.
    std::vector<int> inkedRows(const QRect& area, int tolerance) {
        std::vector<int> rows;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            const QRgb ground = seen_.pixel(area.left() - static_cast<int>(6 * scale()), y);
            for (int x = area.left(); x <= area.right(); ++x) {
                if (distance(seen_.pixel(x, y), ground) <= tolerance) continue;
                rows.push_back(y);
                break;
            }
        }
        return rows;
    }

    /// Where each run of them begins.
    static std::vector<int> starts(const std::vector<int>& rows) {
        std::vector<int> result;
        const double within = 7 * scale();  // the symbols are dashed
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (i == 0 || rows[i] > rows[i - 1] + within) result.push_back(rows[i]);
        }
        return result;
    }

    /// Where the frame that `part` draws begins or ends, along its middle.
    int edgeOf(QWidget& part, bool isLeft) {
        const QRect area = onPicture(part);
        const int reach = static_cast<int>(8 * scale());
        const int y = area.center().y();
        const int from = isLeft ? area.left() - reach : area.right() + reach;
        const QRgb ground = seen_.pixel(from, y);
        const int step = isLeft ? 1 : -1;
        for (int x = from; std::abs(x - from) < 3 * reach; x += step) {
            if (distance(seen_.pixel(x, y), ground) > 12) return x;
        }
        return -1;
    }

    QImage seen_;
};

INSTANTIATE_TEST_SUITE_P(Scales, Neighbours, testing::Values(1.0, 1.25, 1.5, 2.0));

TEST_P(Neighbours, RingsAndChartsOfProcessorAndMemoryStandOnTheSameLines) {
    open({1280, 820});
    const auto ringOf = [&](RingGaugeView& ring) { return inkedRows(onPicture(ring), 20); };
    const auto cpuRing = ringOf(card().gauge());
    const auto memoryRing = ringOf(world.view->card<MemoryCardView>().figures().gauge());
    ASSERT_FALSE(cpuRing.empty());
    EXPECT_EQ(cpuRing, memoryRing);
    const auto chartOf = [&](SparklineView& chart) {
        // With what is above and below it, where nothing else may begin.
        const int around = static_cast<int>(8 * scale());
        const auto rows = inkedRows(onPicture(chart).adjusted(0, -around, 0, around), 14);
        return rows.empty() ? -1 : rows.back();
    };
    EXPECT_GT(chartOf(card().history()), 0);
    EXPECT_EQ(chartOf(card().history()), chartOf(world.view->card<MemoryCardView>().history()));
    const QRect neighbour = onPicture(world.view->card<MemoryCardView>().history());
    EXPECT_EQ(onPicture(card().history()).top(), neighbour.top());
    EXPECT_EQ(onPicture(card().history()).height(), neighbour.height());
}

TEST_P(Neighbours, ListsOfProcessorAndMemoryHaveCommonRowsAndEndTogether) {
    open({1280, 820});
    const auto symbols = [&](ProcessMiniListView& list) {
        QRect column = onPicture(list);
        column.setWidth(static_cast<int>(14 * scale()));
        column.setTop(column.top() + static_cast<int>(22 * scale()));
        return starts(inkedRows(column, 60));
    };
    const auto cpu = symbols(card().processes());
    const auto memory = symbols(world.view->card<MemoryCardView>().processes());
    ASSERT_GE(cpu.size(), 3u);
    ASSERT_GT(memory.size(), cpu.size());
    EXPECT_EQ(cpu.back(), memory.back());
    EXPECT_TRUE(std::equal(cpu.rbegin(), cpu.rend(), memory.rbegin()));
}

TEST_P(Neighbours, TheFirstTitlesUnderTheChartsStandOnOneLine) {
    open({1280, 820});
    const QRect memory = onPicture(world.view->card<MemoryCardView>().processes());
    QWidget* title = nullptr;
    for (QWidget* child : card().findChildren<QWidget*>()) {
        const auto* const line = dynamic_cast<TextLineView*>(child);
        if (line && line->text() == u"Core Activity") title = child;
    }
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(onPicture(*title).top(), memory.top());
}

TEST_P(Neighbours, RowsOfListsAndOfTheTableHaveOnePitch) {
    open({1280, 820});
    const auto pitches = [&](QRect column) {
        const auto tops = starts(inkedRows(column, 60));
        std::vector<int> result;
        for (std::size_t i = 1; i < tops.size(); ++i)
            result.push_back(tops[i] - tops[i - 1]);
        return result;
    };
    QRect list = onPicture(world.view->card<MemoryCardView>().processes());
    list.setWidth(static_cast<int>(14 * scale()));
    list.setTop(list.top() + static_cast<int>(22 * scale()));
    const auto listPitches = pitches(list);
    ASSERT_GE(listPitches.size(), 4u);
    EXPECT_THAT(listPitches, Each(listPitches.front()));
    QRect table = onPicture(world.view->explorer().table());
    table.setLeft(table.left() + static_cast<int>(8 * scale()));
    table.setWidth(static_cast<int>(14 * scale()));
    table.setTop(table.top() + static_cast<int>(26 * scale()));
    const auto tablePitches = pitches(table);
    ASSERT_GE(tablePitches.size(), 12u);
    EXPECT_THAT(tablePitches, Each(tablePitches.front()));
}

TEST_P(Neighbours, HeaderCardsAndExplorerShareTheirEdges) {
    for (const QSize size : {QSize(1280, 820), QSize(1281, 820), QSize(900, 700)}) {
        open(size);
        DashboardView& view = *world.view;
        const int left = edgeOf(view.header(), true);
        const int right = edgeOf(view.header(), false);
        ASSERT_GT(left, 0);
        const bool isOneColumn = size.width() == 900;
        QWidget& last = isOneColumn ? static_cast<QWidget&>(view.card<CPUCardView>())
                                    : view.card<MemoryCardView>();
        EXPECT_EQ(edgeOf(view.card<CPUCardView>(), true), left) << size.width();
        EXPECT_EQ(edgeOf(last, false), right) << size.width();
        EXPECT_EQ(edgeOf(view.explorer(), true), left) << size.width();
        EXPECT_EQ(edgeOf(view.explorer(), false), right) << size.width();
    }
}

TEST_P(Neighbours, TheTableBeginsAndEndsWithWhatStandsAboveIt) {
    for (const QSize size : {QSize(1280, 820), QSize(720, 560)}) {
        open(size);
        ProcessExplorerView& explorer = world.view->explorer();
        const QRect table = onPicture(explorer.table());
        // Of the rows alone, which have a symbol at one end and a bar at the other.
        const QRect rows =
            table.adjusted(0, static_cast<int>(40 * scale()), 0, -table.height() / 2);
        int first = -1;
        int last = -1;
        for (int x = rows.left(); x <= rows.right(); ++x) {
            for (int y = rows.top(); y <= rows.bottom(); ++y) {
                if (distance(seen_.pixel(x, y), seen_.pixel(rows.left(), y)) <= 12) continue;
                if (first < 0) first = x;
                last = x;
                break;
            }
        }
        // The symbol's own edge is blurred.
        EXPECT_NEAR(first, onPicture(explorer.filter()).left(), 2 * scale()) << size.width();
        EXPECT_NEAR(last, onPicture(explorer.picker()).right(), scale()) << size.width();
    }
}

class FirstScreen : public DashboardViewTest {
  protected:
    int bottomOf(QWidget& part) {
        return part.mapTo(world.view.get(), QPoint(0, part.height())).y();
    }
};

TEST_F(FirstScreen, At1280By820TheHeadlineFiguresOfTheSecondRowAreWhole) {
    world.open({1280, 820});
    world.goLive();
    world.advance(std::chrono::seconds(3));
    EXPECT_LE(bottomOf(world.view->card<GPUCardView>().figures().gauge()), 820);
    EXPECT_LE(bottomOf(world.view->card<NetworkCardView>().downloadTile()), 820);
    QMenuBar bar;
    bar.addMenu(QStringLiteral("File"));
    world.view->setMenuBar(&bar);
    world.settle();
    EXPECT_LE(bottomOf(world.view->card<GPUCardView>().figures().gauge()), 820);
    EXPECT_EQ(card().processes().rowLimit(), 3u);
    world.view->layout()->setMenuBar(nullptr);
}

TEST_F(FirstScreen, At1920By1080AllCardsAreWhole) {
    world.open({1920, 1080});
    world.goLive();
    world.advance(std::chrono::seconds(3));
    constexpr int menuBar = 26;
    EXPECT_LE(bottomOf(world.view->card<StorageCardView>()), 1080 - menuBar);
    EXPECT_LE(bottomOf(world.view->card<SystemCardView>()), 1080 - menuBar);
}

TEST_F(FirstScreen, AHighWindowShowsMoreProcesses) {
    world.open({1280, 790});
    EXPECT_EQ(card().processes().rowLimit(), 3u);
    world.open({1280, 1100});
    EXPECT_EQ(card().processes().rowLimit(), 5u);
}

TEST_F(FirstScreen, NoCardStandsAloneInALastRow) {
    const AdaptiveColumns columns;
    EXPECT_EQ(columns.balancedCount(2300, 6), 3) << "three and three, not five and one";
    EXPECT_EQ(columns.balancedCount(1880, 6), 3) << "three and three, not four and two";
    EXPECT_EQ(columns.balancedCount(2100, 6), 4) << "three would not fill the width";
    EXPECT_EQ(columns.balancedCount(1400, 6), 3);
    EXPECT_EQ(columns.balancedCount(2700, 6), 6);
    EXPECT_EQ(columns.balancedCount(1240, 6), 2);
    world.open({2340, 1000});
    EXPECT_EQ(placeOf(world.view->card<GPUCardView>()).left(),
              placeOf(world.view->card<CPUCardView>()).left());
    EXPECT_GT(placeOf(world.view->card<GPUCardView>()).top(),
              placeOf(world.view->card<CPUCardView>()).top());
}

}  // namespace
}  // namespace vantor::neighbours_test

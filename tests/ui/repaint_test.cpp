#include <gtest/gtest.h>

#include <QEvent>
#include <QPaintEvent>
#include <QScrollArea>
#include <QScrollBar>

#include <chrono>
#include <map>

#include "ui/cards/cpu_card.h"
#include "ui/cards/gpu_card.h"
#include "ui/cards/memory_card.h"
#include "ui/cards/network_card.h"
#include "ui/cards/storage_card.h"
#include "ui/cards/system_card.h"
#include "ui/components/text_line.h"
#include "ui/dashboard/dashboard_header.h"
#include "ui/dashboard_world.h"
#include "ui/explorer/process_explorer_view.h"

namespace vantor::repaint_test {
namespace {

using namespace std::chrono_literals;

/// Counts what is painted, and which layouts run, while it lives.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& window) : window_(window) {
        QCoreApplication::instance()->installEventFilter(this);
    }
    QRegion painted() const { return painted_; }
    int layouts() const { return layouts_; }
    int paintedParts() const { return paintedParts_; }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* const widget = qobject_cast<QWidget*>(object);
        if (!widget || (widget != &window_ && !window_.isAncestorOf(widget))) return false;
        if (event->type() == QEvent::Paint) {
            ++paintedParts_;
            painted_ += static_cast<QPaintEvent*>(event)->region().translated(
                widget->mapTo(&window_, QPoint()));
        }
        const bool isLayout =
            event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize;
        layouts_ += isLayout ? 1 : 0;
        return false;
    }

  private:
    QWidget& window_;
    QRegion painted_;
    int layouts_ = 0;
    int paintedParts_ = 0;
};

class Repaint : public testing::Test {
  protected:
    DashboardWorld world;

    void SetUp() override {
        world.open({1280, 820});
        world.advance(8300ms);  // between two ticks
    }
    QRect areaOf(QWidget& part) { return {part.mapTo(world.view.get(), QPoint()), part.size()}; }
    QRegion footer() { return areaOf(world.view->lastUpdate()); }

    /// What a change repaints beside the time in the footer.
    template <class Change>
    QRegion paintedBy(Change&& change) {
        settleEvents();
        const PaintWatch watch(*world.view);
        change();
        world.advanceUnpainted(50ms);
        settleEvents();
        return watch.painted() - footer();
    }
    std::uint64_t generation() { return world.monitor->generation(); }
};

TEST_F(Repaint, ACommitOfOneSectionRepaintsItsCardAlone) {
    const auto cpu = [&] {
        CPUStats stats = world.monitor->dashboardState().snapshot.cpu;
        stats.totalUsage = 0.77;
        world.monitor->receiveCPU(stats, generation());
    };
    const QRegion painted = paintedBy(cpu);
    EXPECT_FALSE(painted.isEmpty());
    EXPECT_TRUE((painted - areaOf(world.view->card<CPUCardView>())).isEmpty());
}

TEST_F(Repaint, ACommitOfTheMemoryRepaintsItsCardAlone) {
    const QRegion painted = paintedBy([&] {
        MemoryStats stats = world.monitor->dashboardState().snapshot.memory;
        stats.usedBytes /= 2;
        world.monitor->receiveMemory(stats, generation());
    });
    EXPECT_FALSE(painted.isEmpty());
    EXPECT_TRUE((painted - areaOf(world.view->card<MemoryCardView>())).isEmpty());
}

TEST_F(Repaint, ACommitOfTheNetworkRepaintsItsCardAlone) {
    const QRegion painted = paintedBy([&] {
        NetworkStats stats = world.monitor->dashboardState().snapshot.network;
        stats.downloadBytesPerSecond += 5e6;
        world.monitor->receiveNetwork(stats, generation());
    });
    EXPECT_FALSE(painted.isEmpty());
    EXPECT_TRUE((painted - areaOf(world.view->card<NetworkCardView>())).isEmpty());
}

TEST_F(Repaint, ValuesThatStayTheSameRepaintOnlyTheCharts) {
    const QRegion painted = paintedBy([&] {
        world.monitor->receiveCPU(world.monitor->dashboardState().snapshot.cpu, generation());
    });
    EXPECT_TRUE((painted - areaOf(world.view->card<CPUCardView>().history())).isEmpty());
}

TEST_F(Repaint, NothingIsLaidOutWhenOnlyValuesChange) {
    const PaintWatch watch(*world.view);
    world.advance(5s);
    EXPECT_FALSE(watch.painted().isEmpty());
    EXPECT_EQ(watch.layouts(), 0);
}

TEST_F(Repaint, WhatIsScrolledAwayIsNotPainted) {
    auto& bar = *world.view->findChild<QScrollArea*>()->verticalScrollBar();
    bar.setValue(bar.maximum());
    settleEvents();
    ASSERT_TRUE(world.view->card<CPUCardView>().gauge().visibleRegion().isEmpty());
    const QRegion painted = paintedBy([&] {
        CPUStats stats = world.monitor->dashboardState().snapshot.cpu;
        stats.totalUsage = 0.5;
        stats.userUsage = 0.4;
        world.monitor->receiveCPU(stats, generation());
    });
    EXPECT_TRUE((painted & areaOf(world.view->card<CPUCardView>().gauge())).isEmpty());
}

TEST_F(Repaint, AHiddenWindowPaintsNothing) {
    world.view->setVisible(false);
    settleEvents();
    const PaintWatch watch(*world.view);
    world.advance(5s);
    EXPECT_EQ(watch.paintedParts(), 0);
}

}  // namespace
}  // namespace vantor::repaint_test

#include <gtest/gtest.h>

#include <QTextDocumentFragment>
#include <QToolTip>

#include "platform/simulated/simulated_machine.h"
#include "ui/cards/cpu_card.h"
#include "ui/cpu_samples.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

/// How the card follows what it is shown.
namespace vantor::cpu_card_view_test {
namespace {

class CPUCardViewTest : public testing::Test {
  protected:
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    CPUCardView view{machine->processInfo()};
    DashboardState state = stateWithCPU();
    PaintCount paints;

    void showCard() { view.show(CPUCard::of(state)); }

    /// Opens the card as a window and waits until it is painted.
    void open() {
        view.resize(460, view.sizeHint().height());
        view.setVisible(true);
        settleEvents();
        paints.watch(view);
    }
    int paintsAfter(void (*change)(DashboardState&)) {
        paints.take();
        change(state);
        showCard();
        settleEvents();
        return paints.take();
    }
};

TEST_F(CPUCardViewTest, WaitsBeforeItIsShownAnything) {
    EXPECT_EQ(utf8(view.header().accessibleValueText()), "Detecting processor\u2026");
    EXPECT_EQ(utf8(view.gauge().gauge().title), "\u2014");
    EXPECT_EQ(utf8(view.loadAverage().text()), "Load avg \u2014");
    EXPECT_EQ(view.cores().count(), 0u);
    EXPECT_TRUE(view.history().sparkline().values.empty());
    EXPECT_EQ(utf8(view.processes().accessibleValueText()), "Waiting for process data\u2026");
}

TEST_F(CPUCardViewTest, ShowsTheReading) {
    showCard();
    EXPECT_EQ(utf8(view.header().accessibleValueText()), "4 physical \u2022 8 logical cores");
    EXPECT_EQ(view.gauge().gauge(), CPUCard::of(state).gauge());
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(view.row(i).row(), CPUCard::of(state).rows()[i]);
    EXPECT_EQ(utf8(view.loadAverage().text()), "Load avg 1.50  0.75  0.33");
    EXPECT_EQ(view.history().sparkline().values, state.histories.cpu);
    EXPECT_EQ(view.cores().count(), 8u);
    EXPECT_EQ(view.revision(), 1u);
}

TEST_F(CPUCardViewTest, AProcessorThatTurnsOutToBeAnotherIsNamedAnew) {
    showCard();
    ++state.revisions.cpu;
    state.snapshot.cpu.logicalCoreCount = 6;
    showCard();
    EXPECT_EQ(utf8(view.header().accessibleValueText()), "4 physical \u2022 6 logical cores");
    ++state.revisions.cpu;
    state.snapshot.cpu.physicalCoreCount = 3;
    state.snapshot.cpu.model = "Another Processor";
    showCard();
    EXPECT_EQ(utf8(view.header().accessibleValueText()), "3 physical \u2022 6 logical cores");
    EXPECT_EQ(utf8(view.header().toolTip()), "Another Processor");
    state.revisions.cpu = 0;
    showCard();
    EXPECT_EQ(utf8(view.header().accessibleValueText()), "Another Processor") << "it waits";
    state.revisions.cpu = 4;
    showCard();
    EXPECT_EQ(utf8(view.header().accessibleValueText()), "3 physical \u2022 6 logical cores");
}

TEST_F(CPUCardViewTest, HistoryHasTheWholeRangeInCyan) {
    const Sparkline& history = view.history().sparkline();
    EXPECT_EQ(history.fixedRange, (std::pair{0.0, 1.0}));
    EXPECT_EQ(history.accent, VantorTheme::cyan());
    EXPECT_EQ(view.history().sizeHint().height(), 62);
}

TEST_F(CPUCardViewTest, AnEqualCardRepaintsNothing) {
    showCard();
    open();
    EXPECT_EQ(paintsAfter([](DashboardState& s) {
                  s.snapshot.cpu.totalUsage = 0.99;
                  s.snapshot.cpu.loadAverage.clear();
                  s.histories.cpu.push_back(1);
                  s.processesByCPU = manyProcesses();
                  s.revisions.memory = 9;
              }),
              0);
    EXPECT_EQ(utf8(view.gauge().gauge().title), "42%");
    EXPECT_EQ(view.processes().rowCount(), 0u);
}

TEST_F(CPUCardViewTest, AnotherRevisionRepaintsWithTheNewFigures) {
    showCard();
    open();
    EXPECT_GT(paintsAfter([](DashboardState& s) {
                  s.snapshot.cpu.totalUsage = 0.99;
                  s.revisions.cpu = 2;
              }),
              0);
    EXPECT_EQ(utf8(view.gauge().gauge().title), "99%");
    EXPECT_EQ(view.revision(), 2u);
}

TEST_F(CPUCardViewTest, NewProcessesRepaintTheListAlone) {
    showCard();
    open();
    PaintCount gaugePaints;
    gaugePaints.watch(view.gauge());
    EXPECT_GT(paintsAfter([](DashboardState& s) {
                  s.processesByCPU = manyProcesses();
                  s.snapshot.cpu.totalUsage = 0.99;
                  s.revisions.processes = 1;
              }),
              0);
    EXPECT_EQ(gaugePaints.take(), 0);
    EXPECT_EQ(view.processes().rowCount(), 5u);
    EXPECT_EQ(utf8(view.gauge().gauge().title), "42%");
}

TEST_F(CPUCardViewTest, RevisionsThatWrapStillRedraw) {
    state.revisions.cpu = ~std::uint64_t{0};
    showCard();
    state.revisions.cpu = 1;
    state.snapshot.cpu.totalUsage = 0.07;
    showCard();
    EXPECT_EQ(utf8(view.gauge().gauge().title), "7%");
}

TEST_F(CPUCardViewTest, HeightDoesNotChangeWhenTheFirstFiguresArrive) {
    const int before = view.heightForWidth(460);
    state.processesByCPU = manyProcesses();
    state.revisions.processes = 1;
    showCard();
    EXPECT_EQ(view.heightForWidth(460), before);
}

TEST_F(CPUCardViewTest, GaugeStandsBesideTheRows) {
    showCard();
    open();
    const QRect gauge(view.gauge().mapTo(&view, QPoint(0, 0)), view.gauge().size());
    EXPECT_EQ(gauge.size(), QSize(126, 126));
    EXPECT_EQ(gauge.left(), 18);
    for (std::size_t i = 0; i < 4; ++i) {
        const QRect row(view.row(i).mapTo(&view, QPoint(0, 0)), view.row(i).size());
        EXPECT_GT(row.left(), gauge.right());
        EXPECT_EQ(row.right(), 460 - 18 - 1);
    }
    const auto gap = [&](std::size_t upper) {
        return view.row(upper + 1).geometry().top() - view.row(upper).geometry().bottom() - 1;
    };
    EXPECT_EQ(gap(0), 10);
    EXPECT_EQ(gap(2), 10);
}

TEST_F(CPUCardViewTest, PartsStandInTheirOrder) {
    showCard();
    open();
    EXPECT_LT(view.row(3).geometry().bottom(), view.loadAverage().geometry().top());
    EXPECT_LE(view.loadAverage().geometry().bottom(), view.gauge().geometry().bottom());
    const int gauge = view.gauge().mapTo(&view, QPoint(0, view.gauge().height())).y();
    EXPECT_LT(gauge, view.history().geometry().top());
    EXPECT_LT(view.history().geometry().bottom(), view.cores().geometry().top());
    EXPECT_LT(view.cores().geometry().bottom(), view.processes().geometry().top());
}

TEST_F(CPUCardViewTest, HasRoomForAllRowsOf256ProcessorsAtAnyWidth) {
    state.snapshot.cpu.perCoreUsage.assign(256, 0.5);
    showCard();
    view.setVisible(true);
    for (const int width : {320, 430, 680}) {
        view.resize(width, view.heightForWidth(width));
        settleEvents();
        const QRect cores = view.cores().geometry();
        EXPECT_EQ(cores.height(), view.cores().heightForWidth(cores.width())) << width;
        EXPECT_LE(view.processes().geometry().bottom(), view.height() - 18) << width;
    }
}

TEST_F(CPUCardViewTest, TheModelIsTheHelpOfTheTitle) {
    state.snapshot.cpu.model = "R&D <prototype> & more";
    showCard();
    view.resize(460, view.sizeHint().height());
    view.setVisible(true);
    settleEvents();
    hover(view.header(), QPoint(30, 10));
    const QString help = QToolTip::text();
    const QString seen =
        Qt::mightBeRichText(help) ? QTextDocumentFragment::fromHtml(help).toPlainText() : help;
    EXPECT_EQ(utf8(seen), "R&D <prototype> & more");
    QToolTip::hideText();
}

TEST_F(CPUCardViewTest, OlderSystemsHaveAnotherSymbolBeforeTheProcesses) {
    state.processesByCPU = manyProcesses();
    state.revisions.processes = 1;
    showCard();
    machine->processInfo().version = {11, 7, 0};
    CPUCardView older(machine->processInfo());
    older.show(CPUCard::of(state));
    const QSize size(240, view.processes().sizeHint().height());
    const QImage dashed = rendered(view.processes(), size);
    const QImage plain = rendered(older.processes(), size);
    const QRectF symbols(0, 0, 16, size.height());
    const QRectF texts(17, 0, size.width() - 17, size.height());
    EXPECT_NE(paintedPixels(dashed, symbols), paintedPixels(plain, symbols));
    EXPECT_EQ(dashed.copy(texts.toRect()), plain.copy(texts.toRect()));
}

}  // namespace
}  // namespace vantor::cpu_card_view_test

#include "ui/explorer/process_explorer_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScrollArea>
#include <QShortcut>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "platform/simulated/manual_main_loop.h"
#include "platform/simulated/simulated_machine.h"
#include "ui/components/make_child.h"
#include "ui/cpu_samples.h"
#include "ui/explorer/process_columns.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

/// How the explorer follows the user and the readings.
namespace vantor::process_explorer_view_test {
namespace {

using namespace std::chrono_literals;

class ProcessExplorerViewTest : public testing::Test {
  protected:
    std::shared_ptr<WoundClock> clock = std::make_shared<WoundClock>();
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop(clock);
    std::shared_ptr<ManualMainLoop> loop = std::make_shared<ManualMainLoop>(clock);
    ProcessExplorerView view{machine->processInfo(), loop};
    DashboardState state;
    PaintCount paints;

    ProcessExplorerViewTest() {
        state.snapshot.processes = state.processesByCPU = state.processesByMemory = manyProcesses();
        std::ranges::reverse(state.processesByMemory);
    }
    void showProcesses() {
        ++state.revisions.processes;
        view.show(ProcessExplorer::of(state));
    }
    void open() {
        view.resize(900, view.sizeHint().height());
        view.setVisible(true);
        settleEvents();
        paints.watch(view);
    }
    void wait(std::chrono::nanoseconds by) {
        clock->setNow(clock->now() + by);
        while (loop->runDueTimer()) {
        }
    }
    void type(const char* text) { view.filter().setText(QString::fromUtf8(text)); }
    std::string firstName() { return utf8(view.table().rowTexts(0).at(0)); }
};

TEST_F(ProcessExplorerViewTest, IsACardWithItsTitleAndSymbol) {
    const DashboardCard& frame = view.header().card();
    EXPECT_EQ(utf8(frame.title), "Process Explorer");
    EXPECT_EQ(utf8(frame.subtitle.value()), "Live process activity");
    EXPECT_EQ(utf8(frame.icon), "list.bullet.rectangle");
    EXPECT_EQ(frame.accent, VantorTheme::cyan());
    EXPECT_EQ(utf8(view.filter().placeholderText()), "Filter processes");
    EXPECT_EQ(view.filter().maximumWidth(), 260);
    EXPECT_EQ(utf8(view.picker().accessibleName()), "Sort");
}

TEST_F(ProcessExplorerViewTest, SaysThatThereIsNoProcessDataYet) {
    EXPECT_TRUE(view.isEmptyStateShown());
    EXPECT_EQ(utf8(view.emptyState().state().message), "No process data is available yet.");
    EXPECT_EQ(utf8(view.emptyState().state().systemImage), "list.bullet.rectangle.portrait");
}

TEST_F(ProcessExplorerViewTest, ShowsTheProcessesByProcessorFirst) {
    showProcesses();
    EXPECT_FALSE(view.isEmptyStateShown());
    EXPECT_EQ(view.sortMode(), SortMode::cpu);
    EXPECT_EQ(view.table().rowCount(), 7u);
    const QStringList first = view.table().rowTexts(0);
    EXPECT_EQ(utf8(first.join(u'|')), "compiler|10|312.5%|1.5 MB");
}

TEST_F(ProcessExplorerViewTest, ThePickerSortsByMemory) {
    showProcesses();
    click(view.picker().button(1));
    EXPECT_EQ(view.sortMode(), SortMode::memory);
    EXPECT_EQ(firstName(), "clock");
}

TEST_F(ProcessExplorerViewTest, AQueryIsAppliedAfter150Milliseconds) {
    showProcesses();
    type("edit");
    EXPECT_EQ(utf8(view.query()), "edit");
    wait(149ms);
    EXPECT_EQ(view.table().rowCount(), 7u);
    wait(1ms);
    EXPECT_EQ(utf8(view.debouncedQuery()), "edit");
    EXPECT_EQ(view.table().rowCount(), 1u);
}

TEST_F(ProcessExplorerViewTest, ANewerChangeCancelsThePendingOne) {
    showProcesses();
    type("edit");
    wait(100ms);
    type("music");
    wait(100ms);
    EXPECT_EQ(view.table().rowCount(), 7u) << "neither the former nor yet the latter";
    wait(50ms);
    EXPECT_EQ(firstName(), "music");
}

TEST_F(ProcessExplorerViewTest, ClearingTheQueryRestoresTheFullListAtOnce) {
    showProcesses();
    type("edit");
    wait(150ms);
    ASSERT_EQ(view.table().rowCount(), 1u);
    type("");
    EXPECT_EQ(view.table().rowCount(), 7u);
    type("music");
    type("");
    wait(1s);
    EXPECT_EQ(view.table().rowCount(), 7u) << "nothing is pending any more";
}

TEST_F(ProcessExplorerViewTest, AQueryThatMatchesNothingIsQuoted) {
    showProcesses();
    type("zzz");
    wait(150ms);
    EXPECT_TRUE(view.isEmptyStateShown());
    EXPECT_EQ(
        view.emptyState().state(),
        (EmptyState{QStringLiteral("No Matching Processes"), QStringLiteral("magnifyingglass"),
                    QStringLiteral("No process matches \u201Czzz\u201D.")}));
}

TEST_F(ProcessExplorerViewTest, SortAndFilterSurviveARefresh) {
    showProcesses();
    click(view.picker().button(1));
    type("edi");
    wait(150ms);
    ASSERT_EQ(view.table().rowCount(), 1u);
    showProcesses();
    EXPECT_EQ(view.sortMode(), SortMode::memory);
    EXPECT_EQ(firstName(), "editor");
    EXPECT_EQ(view.table().rowCount(), 1u);
}

TEST_F(ProcessExplorerViewTest, TheSameRevisionIsNotDrawnAgain) {
    showProcesses();
    open();
    paints.take();
    view.show(ProcessExplorer::of(state));
    settleEvents();
    EXPECT_EQ(paints.take(), 0);
    showProcesses();
    settleEvents();
    EXPECT_EQ(paints.take(), 0) << "another revision with the same figures looks the same";
}

TEST_F(ProcessExplorerViewTest, KeepsItsHeightWhateverItShows) {
    const int height = view.sizeHint().height();
    showProcesses();
    EXPECT_EQ(view.sizeHint().height(), height);
    type("zzz");
    wait(150ms);
    EXPECT_EQ(view.sizeHint().height(), height);
}

TEST_F(ProcessExplorerViewTest, TheChosenRowStaysTheSameProcess) {
    showProcesses();
    view.table().setCurrentRow(2);
    std::swap(state.processesByCPU[0], state.processesByCPU[2]);
    showProcesses();
    EXPECT_EQ(view.table().currentRow(), 0u);
    state.processesByCPU.erase(state.processesByCPU.begin());
    showProcesses();
    EXPECT_EQ(view.table().currentRow(), std::nullopt);
}

TEST_F(ProcessExplorerViewTest, ArrowKeysWalkTheRows) {
    showProcesses();
    open();
    ProcessTableView& table = view.table();
    table.setFocus(Qt::TabFocusReason);
    pressKey(table, Qt::Key_Home);
    EXPECT_EQ(table.currentRow(), 0u);
    pressKey(table, Qt::Key_Down);
    pressKey(table, Qt::Key_Down);
    EXPECT_EQ(table.currentRow(), 2u);
    pressKey(table, Qt::Key_Up);
    EXPECT_EQ(table.currentRow(), 1u);
    pressKey(table, Qt::Key_End);
    EXPECT_EQ(table.currentRow(), 6u);
    pressKey(table, Qt::Key_Down);
    EXPECT_EQ(table.currentRow(), 6u);
}

TEST_F(ProcessExplorerViewTest, AClickChoosesARowAndCopyTakesIt) {
    showProcesses();
    open();
    ProcessTableView& table = view.table();
    const QPointF middle = table.accessibleRowArea(1).center();
    sendMouse(table, QEvent::MouseButtonPress, middle);
    sendMouse(table, QEvent::MouseButtonRelease, middle);
    EXPECT_EQ(table.currentRow(), 1u);
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QCoreApplication::sendEvent(&table, &copy);
    EXPECT_EQ(utf8(QGuiApplication::clipboard()->text()),
              "browser\t11\t45.0%\t1.5 MB\t/usr/bin/browser");
}

TEST_F(ProcessExplorerViewTest, ARowsHelpIsTheFullCommand) {
    showProcesses();
    open();
    hover(view.table(), view.table().accessibleRowArea(3).center());
    EXPECT_EQ(utf8(QToolTip::text()), "/usr/bin/terminal");
    QToolTip::hideText();
}

TEST_F(ProcessExplorerViewTest, ARowsHelpGoesWhenAnotherProcessTakesItsPlace) {
    showProcesses();
    open();
    hover(view.table(), view.table().accessibleRowArea(3).center());
    ASSERT_EQ(utf8(QToolTip::text()), "/usr/bin/terminal");
    type("edit");
    wait(150ms);
    // The toolkit takes it away a moment later.
    QElapsedTimer patience;
    patience.start();
    while (QToolTip::isVisible() && !patience.hasExpired(5000))
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    EXPECT_FALSE(QToolTip::isVisible()) << utf8(QToolTip::text());
}

TEST_F(ProcessExplorerViewTest, HostileNamesAreDrawnOnOneLine) {
    state.processesByCPU = {process(1, std::string(4000, 'W'), 1), process(2, "a\nb\tc\x01", 1),
                            process(3, "שלום עולם", 1), process(4, "<b>bold</b>", 1)};
    std::string marks = "e";
    for (int i = 0; i < 500; ++i)
        marks += "\u0301";
    state.processesByCPU.push_back(process(5, marks, 1));
    showProcesses();
    open();
    const QImage image = rendered(view.table(), view.table().size());
    const QRect pid = view.table().accessibleRowArea(0);
    EXPECT_GT(paintedPixels(image, QRectF(pid)), 100);
    EXPECT_EQ(view.table().rowCount(), 5u);
    EXPECT_EQ(utf8(view.table().accessibleRowLabel(1)),
              "a\uFFFDb\uFFFDc\uFFFD, PID 2, CPU 1.0%, memory 1.5 MB");
}

TEST_F(ProcessExplorerViewTest, RowsAreToldToThoseWhoCannotSeeThem) {
    showProcesses();
    open();
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&view.table());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), 7);
    QAccessibleInterface* row = list->child(1);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->role(), QAccessible::ListItem);
    EXPECT_EQ(utf8(row->text(QAccessible::Name)), "browser, PID 11, CPU 45.0%, memory 1.5 MB");
    EXPECT_EQ(list->indexOfChild(row), 1);
    EXPECT_EQ(row->parent(), list);
    EXPECT_EQ(list->childAt(row->rect().center().x(), row->rect().center().y()), row);
    EXPECT_FALSE(row->state().selected);
    view.table().setCurrentRow(1);
    EXPECT_TRUE(row->state().selected);
    type("edit");
    wait(150ms);
    EXPECT_EQ(list->childCount(), 1);
    EXPECT_FALSE(row->isValid());
    EXPECT_EQ(utf8(list->child(0)->text(QAccessible::Name)),
              "editor, PID 12, CPU 10.0%, memory 1.5 MB");
}

TEST_F(ProcessExplorerViewTest, ARowThatIsChosenByKeyComesIntoView) {
    showProcesses();
    QScrollArea area;
    auto* content = makeChild<QWidget>(&area);
    area.setWidget(content);
    content->resize(800, 1600);
    view.setParent(content);
    view.setGeometry(0, 900, 780, view.sizeHint().height());
    area.resize(820, 300);
    area.setVisible(true);
    view.setVisible(true);
    settleEvents();
    ProcessTableView& table = view.table();
    const auto isSeen = [&](int row) {
        const QRect place(table.mapTo(area.viewport(), table.accessibleRowArea(row).topLeft()),
                          table.accessibleRowArea(row).size());
        return area.viewport()->rect().contains(place.topLeft()) &&
               place.bottom() < area.viewport()->height();
    };
    EXPECT_FALSE(isSeen(6));
    pressKey(table, Qt::Key_End);
    EXPECT_TRUE(isSeen(6));
    view.focusFilter();
    EXPECT_GE(view.filter().mapTo(area.viewport(), QPoint(0, 0)).y(), 0);
    view.setParent(nullptr);
}

TEST(ProcessColumns, HaveTheirWidthsAndScaleWithTheFont) {
    const auto columns = ProcessColumns::make(800, 16, 1);
    EXPECT_EQ(columns.icon.width(), 18);
    EXPECT_EQ(columns.pid.width(), 64);
    EXPECT_EQ(columns.cpuBar.right() - columns.cpuText.left(), 120);
    EXPECT_EQ(columns.cpuBar.width(), 48);
    EXPECT_EQ(columns.memoryBar.right() - columns.memoryText.left(), 140);
    EXPECT_EQ(columns.memoryBar.width(), 72);
    EXPECT_LT(columns.name.right(), columns.pid.left());
    const auto large = ProcessColumns::make(1200, 24, 1.5);
    EXPECT_EQ(large.pid.width(), 96);
    EXPECT_GE(ProcessColumns::make(100, 16, 1).name.width(), 0) << "no room at all";
    const auto tight = ProcessColumns::make(620, 24, 1.5);
    EXPECT_EQ(tight.cpuBar.width(), 0) << "rather no bars than no names";
    EXPECT_GT(tight.name.width(), 150);
}

}  // namespace
}  // namespace vantor::process_explorer_view_test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMenu>
#include <QScrollArea>
#include <QShortcut>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/simulated_machine.h"
#include "ui/components/make_child.h"
#include "ui/cpu_samples.h"
#include "ui/explorer/process_columns.h"
#include "ui/explorer/process_explorer_view.h"
#include "ui/gestures.h"
#include "ui/process_explorer_fixture.h"
#include "ui/rendering.h"

namespace vantor::process_table_view_test {
namespace {

using namespace std::chrono_literals;

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

TEST_F(ProcessExplorerViewTest, AClickOnATitleSortsAsTheControlDoes) {
    showProcesses();
    open();
    ProcessTableView& table = view.table();
    const auto columns = ProcessColumns::make(table.width(), 16, 1);
    const QPointF memory(columns.memoryText.right() - 4, 8);
    const QImage before = rendered(table, table.size());
    sendMouse(table, QEvent::MouseButtonPress, memory);
    EXPECT_EQ(view.sortMode(), SortMode::memory);
    EXPECT_EQ(view.picker().choice(), 1);
    EXPECT_EQ(firstName(), "clock");
    const QImage after = rendered(table, table.size());
    const auto titles = [](const QImage& image, const QRectF& column) {
        return paintedPixels(image, QRectF(column.left() - 8, 0, column.width() + 8, 22));
    };
    EXPECT_GT(titles(after, columns.memoryText), titles(before, columns.memoryText));
    EXPECT_LT(titles(after, columns.cpuText), titles(before, columns.cpuText));
    sendMouse(table, QEvent::MouseButtonPress, {columns.cpuBar.center().x(), 8});
    EXPECT_EQ(view.sortMode(), SortMode::cpu);
    sendMouse(table, QEvent::MouseButtonPress, {columns.pid.center().x(), 8});
    EXPECT_EQ(view.sortMode(), SortMode::cpu);
    click(view.picker().button(1));
    EXPECT_EQ(rendered(table, table.size()), after) << "the arrow follows the control";
}

TEST_F(ProcessExplorerViewTest, TitlesAndBarsExplainThemselves) {
    showProcesses();
    open();
    ProcessTableView& table = view.table();
    const auto columns = ProcessColumns::make(table.width(), 16, 1);
    const double row = table.accessibleRowArea(1).center().y();
    EXPECT_TRUE(
        table.helpAt({columns.cpuText.right() - 2, 5}).startsWith(u"100% is one processor"));
    EXPECT_EQ(utf8(table.helpAt({columns.cpuBar.center().x(), row})),
              "A full bar is the largest of the processes shown.");
    EXPECT_EQ(utf8(table.helpAt({columns.name.left(), row})), "/usr/bin/browser");
    EXPECT_TRUE(table.helpAt({columns.pid.center().x(), 5}).isEmpty());
    table.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(utf8(table.helpAt({table.width() - columns.cpuBar.center().x(), row})),
              "A full bar is the largest of the processes shown.");
}

TEST_F(ProcessExplorerViewTest, TheCommandFollowsTheNameWhereThereIsRoom) {
    open();
    const auto drawn = [this](const std::string& name, const char* command) {
        state.processesByCPU = {process(11, name, 1)};
        state.processesByCPU.front().command = command;
        showProcesses();
        return rendered(view.table(), view.table().size());
    };
    EXPECT_NE(drawn("browser", "/usr/bin/browser"), drawn("browser", "/opt/own/browser"));
    const std::string wide(60, 'w');
    EXPECT_EQ(drawn(wide, "/usr/bin/browser"), drawn(wide, "/opt/own/browser"));
}

TEST_F(ProcessExplorerViewTest, ARowsMenuCopiesAndFilters) {
    showProcesses();
    open();
    ProcessTableView& table = view.table();
    const auto choose = [&](QContextMenuEvent::Reason reason, int entry) {
        const QPoint middle = table.accessibleRowArea(1).center();
        QContextMenuEvent event(reason, middle, table.mapToGlobal(middle));
        QCoreApplication::sendEvent(&table, &event);
        auto* const menu = table.findChild<QMenu*>();
        if (!menu) return std::string("no menu");
        QAction* const action = menu->actions().at(entry);
        const std::string title = utf8(action->text());
        action->trigger();
        menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return title + ": " + utf8(QGuiApplication::clipboard()->text());
    };
    EXPECT_EQ(choose(QContextMenuEvent::Keyboard, 0), "no menu") << "no row is chosen";
    EXPECT_EQ(choose(QContextMenuEvent::Mouse, 0),
              "Copy: browser\t11\t45.0%\t1.5 MB\t/usr/bin/browser");
    EXPECT_EQ(table.currentRow(), 1u);
    EXPECT_EQ(choose(QContextMenuEvent::Keyboard, 1), "Copy Name: browser");
    EXPECT_EQ(choose(QContextMenuEvent::Keyboard, 2), "Copy Path: /usr/bin/browser");
    EXPECT_EQ(choose(QContextMenuEvent::Keyboard, 4), "Filter by This Name: /usr/bin/browser");
    wait(150ms);
    EXPECT_EQ(utf8(view.debouncedQuery()), "browser");
    EXPECT_EQ(table.rowCount(), 1u);
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
}  // namespace vantor::process_table_view_test

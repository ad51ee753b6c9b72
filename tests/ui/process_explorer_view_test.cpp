#include "ui/explorer/process_explorer_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "platform/simulated/fake_main_loop.h"
#include "platform/simulated/simulated_machine.h"
#include "ui/components/make_child.h"
#include "ui/cpu_samples.h"
#include "ui/explorer/process_columns.h"
#include "ui/gestures.h"
#include "ui/process_explorer_fixture.h"
#include "ui/rendering.h"

namespace vantor::process_explorer_view_test {
namespace {

using namespace std::chrono_literals;

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

TEST_F(ProcessExplorerViewTest, TheFieldLeavesTheExportsKeysToTheMenu) {
    QKeyEvent exports(QEvent::ShortcutOverride, Qt::Key_E, Qt::ControlModifier);
    QApplication::sendEvent(&view.filter(), &exports);
    EXPECT_FALSE(exports.isAccepted());
    QKeyEvent letter(QEvent::ShortcutOverride, Qt::Key_E, Qt::NoModifier, QStringLiteral("e"));
    QApplication::sendEvent(&view.filter(), &letter);
    EXPECT_TRUE(letter.isAccepted()) << "the field's own";
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

}  // namespace
}  // namespace vantor::process_explorer_view_test

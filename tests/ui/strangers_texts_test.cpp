#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QToolTip>

#include "ui/cards/network_card.h"
#include "ui/cards/process_mini_list.h"
#include "ui/cards/volume_view.h"
#include "ui/components/accessible_views.h"
#include "ui/components/tool_tip_text.h"
#include "ui/cpu_samples.h"
#include "ui/explorer/process_search.h"
#include "ui/explorer/process_table_view.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

/// Any user of the machine chooses names that others read.
namespace vantor::strangers_texts_test {
namespace {

const std::string breaking = "calm\nrm -rf ~ #\n";
const std::string reversed = "inno\u202Etxt.exe";
const std::string markup = "<b>bold</b> <img src=\"/etc/passwd\">";

/// `count` marks above one letter. The tests' font piles these up, and not many others.
std::string piledUp(int count) {
    std::string name = count > 4 ? "e" : "X";
    for (int i = 0; i < count; ++i)
        name += "\u0301";
    return name;
}

std::vector<ProcessRow> rowsOf(const std::vector<ProcessStats>& processes) {
    std::vector<ProcessRow> rows;
    for (const ProcessStats& process : processes)
        rows.push_back({process, 400, 10'000'000});
    return rows;
}

class StrangersTexts : public testing::Test {
  protected:
    StrangersTexts() { installViewAccessibility(); }

    void showInTable() {
        table.show(rowsOf(processes));
        table.resize(700, table.sizeHint().height());
        table.setCurrentRow(1);
    }
    QImage drawnTable() {
        table.show(rowsOf(processes));
        table.setCurrentRow({});
        return rendered(table, {700, table.sizeHint().height()});
    }
    std::string copied() {
        showInTable();
        QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
        QCoreApplication::sendEvent(&table, &copy);
        return utf8(QGuiApplication::clipboard()->text());
    }

    std::vector<ProcessStats> processes = manyProcesses();
    ProcessTableView table{QStringLiteral("app.dashed")};
};

TEST_F(StrangersTexts, ACopiedRowIsOneLineOfFiveColumns) {
    processes[1].name = breaking;
    processes[1].command = "/tmp/a\tb\u2028" + breaking;
    EXPECT_EQ(copied(),
              "calm\uFFFDrm -rf ~ #\uFFFD\t11\t45.0%\t1.5 MB\t"
              "/tmp/a\uFFFDb\uFFFDcalm\uFFFDrm -rf ~ #\uFFFD");
}

TEST_F(StrangersTexts, ACopiedNameThatBeginsLikeAFormulaStaysTheName) {
    processes[1].name = "-bash";
    EXPECT_TRUE(copied().starts_with("-bash\t11\t"));
}

TEST_F(StrangersTexts, ARowIsReadAloudAsItIsSeen) {
    processes[0].name = breaking;
    processes[1].name = reversed;
    processes[2].name = "שלום";
    showInTable();
    EXPECT_EQ(utf8(table.accessibleRowLabel(0)),
              "calm\uFFFDrm -rf ~ #\uFFFD, PID 10, CPU 312.5%, memory 1.5 MB");
    EXPECT_EQ(utf8(table.accessibleRowLabel(1)), "innotxt.exe, PID 11, CPU 45.0%, memory 1.5 MB");
    EXPECT_EQ(utf8(table.accessibleRowLabel(2)),
              "\u2068שלום\u2069, PID 12, CPU 10.0%, memory 1.5 MB");
}

TEST_F(StrangersTexts, HelpShowsMarkupLetterByLetterAndBreaksNoLine) {
    processes[1].command = markup;
    processes[2].command = breaking;
    showInTable();
    table.setVisible(true);
    settleEvents();
    const auto help = [&](int row) {
        hover(table, table.accessibleRowArea(row).center());
        return utf8(readToolTip(QToolTip::text()));
    };
    EXPECT_EQ(help(1), markup);
    EXPECT_EQ(help(2), "calm\uFFFDrm -rf ~ #\uFFFD");
    QToolTip::hideText();
}

TEST_F(StrangersTexts, ATurnedNameIsPaintedAsItsLettersStand) {
    processes[1].name = "innotxt.exe";
    const QImage plain = drawnTable();
    processes[1].name = reversed;
    EXPECT_EQ(drawnTable(), plain);
}

TEST_F(StrangersTexts, ANameOfMarksPaintsOverNoOtherRow) {
    const QImage before = drawnTable();
    for (const std::string& name : {piledUp(100), piledUp(4)}) {
        processes[3].name = name;
        const QImage after = drawnTable();
        EXPECT_NE(after, before);
        const QRect row = table.accessibleRowArea(3).adjusted(0, -4, 0, 4);
        EXPECT_EQ(after.copy(0, 0, 700, row.top()), before.copy(0, 0, 700, row.top()));
        const QRect below(0, row.bottom() + 1, 700, after.height() - row.bottom() - 1);
        EXPECT_EQ(after.copy(below), before.copy(below));
    }
}

TEST_F(StrangersTexts, ANameOfMarksPaintsOverNoOtherRowOfACard) {
    ProcessMiniListView list({QStringLiteral("Top"), {}, ProcessMiniList::Metric::cpu}, 5,
                             QStringLiteral("app.dashed"));
    const auto drawn = [&] {
        list.show(processes);
        return rendered(list, {240, list.sizeHint().height()});
    };
    const QImage before = drawn();
    const double step = (list.sizeHint().height() + 8) / 6.0;
    const auto top = static_cast<int>(step * 3 - 4);
    const auto bottom = static_cast<int>(step * 4 - 3);
    for (const std::string& name : {piledUp(100), piledUp(4)}) {
        processes[2].name = name;
        const QImage after = drawn();
        EXPECT_NE(after, before);
        EXPECT_EQ(after.copy(0, 0, 240, top), before.copy(0, 0, 240, top));
        const QRect below(0, bottom, 240, after.height() - bottom);
        EXPECT_EQ(after.copy(below), before.copy(below));
    }
}

TEST_F(StrangersTexts, AreFoundAsTheyAreAndAsTheyAreShown) {
    const auto finds = [](const std::string& query, const std::string& name) {
        return ProcessSearch(QString::fromStdString(query)).matches(process(1, name, 0));
    };
    EXPECT_TRUE(finds("innotxt", reversed));
    EXPECT_TRUE(finds("INNO\u202Etxt", reversed));
    EXPECT_TRUE(finds("\uFFFDrm", breaking));
    EXPECT_TRUE(finds("rm -rf", breaking));
    EXPECT_TRUE(finds("a b", "a\u00A0b"));
    EXPECT_FALSE(finds("b a", "a\u00A0b"));
}

TEST_F(StrangersTexts, AVolumeIsReadAloudWithoutMarkupOrBreaks) {
    VolumeStats volume;
    volume.name = "a\nb";
    volume.path = markup;
    volume.totalBytes = 100;
    VolumeView view{VolumeBlock{}};
    view.show(volume);
    auto* const element = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(element, nullptr);
    EXPECT_TRUE(utf8(element->text(QAccessible::Name)).find("a\uFFFDb") == 0);
    const std::string description = utf8(element->text(QAccessible::Description));
    EXPECT_TRUE(description.ends_with(markup)) << description;
    // What a tool tip makes of it.
    QLabel tip(view.toolTip());
    EXPECT_EQ(utf8(readToolTip(tip.text())), markup);
}

TEST_F(StrangersTexts, AnInterfaceHasOneLineOfTheHelp) {
    NetworkInterfaceStats interface;
    interface.name = "a\nb";
    interface.ipv4Address = "10.0.0.1";
    NetworkStats stats;
    stats.interfaces = {interface};
    DashboardState state;
    state.snapshot.network = stats;
    EXPECT_EQ(utf8(NetworkCard::of(state).interfacesHelp()), "a\uFFFDb  10.0.0.1");
}

}  // namespace
}  // namespace vantor::strangers_texts_test

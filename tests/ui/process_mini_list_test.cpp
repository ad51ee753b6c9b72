#include "ui/cards/process_mini_list.h"

#include <gtest/gtest.h>

#include <QTextDocumentFragment>
#include <QToolTip>

#include "ui/cpu_samples.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::process_mini_list_test {
namespace {

using Metric = ProcessMiniList::Metric;

std::string seenHelp() {
    const QString help = QToolTip::text();
    return utf8(Qt::mightBeRichText(help) ? QTextDocumentFragment::fromHtml(help).toPlainText()
                                          : help);
}

class ProcessMiniListTest : public testing::Test {
  protected:
    ProcessMiniListView view{
        {QStringLiteral("Top CPU Processes"), {}, Metric::cpu}, 5, QStringLiteral("app.dashed")};
    std::vector<ProcessStats> processes = manyProcesses();

    QImage drawn(int width = 240) { return rendered(view, QSize(width, view.sizeHint().height())); }
    /// From the top of a row to the top of the next.
    double step() const { return (view.sizeHint().height() + 8) / 6.0; }
    QRectF row(int index, int width = 240) const {
        return {0, step() * (index + 1), static_cast<double>(width), step() - 8};
    }
};

TEST_F(ProcessMiniListTest, ValueByCPUHasOneDecimalAndIsNotHeldAt100) {
    EXPECT_EQ(utf8(ProcessMiniList::value(process(1, "a", 312.46), Metric::cpu)), "312.5%");
    EXPECT_EQ(utf8(ProcessMiniList::value(process(1, "a", 0), Metric::cpu)), "0.0%");
}

TEST_F(ProcessMiniListTest, ValueByMemoryIsTheResidentSize) {
    EXPECT_EQ(utf8(ProcessMiniList::value(process(1, "a", 50), Metric::memory)), "1.5 MB");
}

TEST_F(ProcessMiniListTest, WaitsWithoutProcesses) {
    EXPECT_EQ(utf8(view.accessibleValueText()), "Waiting for process data\u2026");
    EXPECT_EQ(view.rowCount(), 0u);
    const QImage image = drawn();
    EXPECT_GT(paintedPixels(image, row(0)), 50);
    EXPECT_EQ(paintedPixels(image, row(1).adjusted(0, 0, 0, 100)), 0) << "and no rows";
}

TEST_F(ProcessMiniListTest, AnEmptyListAfterAFullOneWaitsAgain) {
    view.show(processes);
    view.show({});
    EXPECT_EQ(view.rowCount(), 0u);
    EXPECT_EQ(utf8(view.accessibleValueText()), "Waiting for process data\u2026");
}

TEST_F(ProcessMiniListTest, ShowsTheFirstFiveInTheirOrder) {
    view.show(processes);
    EXPECT_EQ(view.rowCount(), 5u);
    EXPECT_EQ(utf8(view.accessibleValueText()),
              "compiler 312.5%, browser 45.0%, editor 10.0%, terminal 0.5%, music 0.1%");
}

TEST_F(ProcessMiniListTest, ShowsFewerWhereThereAreFewer) {
    view.show(std::span(processes).first(2));
    EXPECT_EQ(view.rowCount(), 2u);
    const QImage image = drawn();
    EXPECT_GT(paintedPixels(image, row(1)), 0);
    EXPECT_EQ(paintedPixels(image, row(2)), 0);
}

TEST_F(ProcessMiniListTest, RowsAreEightApartAndEachHasSymbolNameAndValue) {
    view.show(processes);
    const QImage image = drawn();
    for (int i = 0; i < 5; ++i) {
        const QRectF area = row(i);
        EXPECT_GT(paintedPixels(image, QRectF(0, area.top(), 14, area.height())), 10) << i;
        EXPECT_EQ(paintedPixels(image, QRectF(15, area.top(), 6, area.height())), 0) << i;
        EXPECT_GT(paintedPixels(image, QRectF(22, area.top(), 60, area.height())), 20) << i;
        EXPECT_GT(paintedPixels(image, QRectF(200, area.top(), 40, area.height())), 20) << i;
    }
}

TEST_F(ProcessMiniListTest, KeepsItsHeightHoweverManyRowsItShows) {
    const QSize empty = view.sizeHint();
    view.show(processes);
    EXPECT_EQ(view.sizeHint(), empty);
}

TEST_F(ProcessMiniListTest, AVeryLongNameIsCutBeforeTheValue) {
    processes[0].name = std::string(4000, 'W');
    view.show(processes);
    const QImage longName = drawn();
    processes[0].name = "W";
    view.show(processes);
    const QRectF value(185, row(0).top(), 55, row(0).height());
    EXPECT_EQ(paintedPixels(longName, value), paintedPixels(drawn(), value));
    EXPECT_GT(paintedPixels(longName, QRectF(150, value.top(), 20, value.height())), 0);
}

TEST_F(ProcessMiniListTest, ANameOfControlCharactersAndBrokenTextDoesNotFail) {
    processes[0].name = "line\nbreak\ttab\x01\x7f";
    processes[1].name = "\xff\xfe broken";
    processes[2].name = std::string(4000, '\n');
    processes[3].name = "";
    processes[4].name = "\xe2\x80\xae reversed \xf0\x9f\x9a\x80";
    view.show(processes);
    const QImage image = drawn();
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(paintedPixels(image, row(i).adjusted(0, row(i).height() + 1, 0, 6)), 0)
            << "a name keeps to its line: " << i;
    }
}

TEST_F(ProcessMiniListTest, HasNoRoomForNamesInANarrowPlaceAndDoesNotFail) {
    view.show(processes);
    for (const int width : {1, 20, 60}) {
        EXPECT_GT(paintedPixels(drawn(width), QRectF(0, 0, width, 200)), 0) << width;
    }
}

TEST_F(ProcessMiniListTest, RepaintsOnlyWhenSomethingShownHasChanged) {
    view.show(processes);
    view.resize(240, view.sizeHint().height());
    view.setVisible(true);
    settleEvents();
    PaintCount paints;
    paints.watch(view);
    processes[0].cpuPercent += 0.001;
    processes[6].name = "beyond the last row";
    view.show(processes);
    settleEvents();
    EXPECT_EQ(paints.take(), 0);
    processes[0].cpuPercent += 1;
    view.show(processes);
    settleEvents();
    EXPECT_EQ(paints.take(), 1);
}

TEST_F(ProcessMiniListTest, ThePathIsTheHelpOfARow) {
    processes[1].command = "/opt/R&D/<new>/browser";
    view.show(processes);
    drawn();
    view.setVisible(true);
    settleEvents();
    hover(view, row(0).center().toPoint());
    EXPECT_EQ(seenHelp(), "/usr/bin/compiler");
    hover(view, row(1).center().toPoint());
    EXPECT_EQ(seenHelp(), "/opt/R&D/<new>/browser");
    processes[2].command = "/opt/Tom & Jerry &lt;/editor";
    view.show(processes);
    hover(view, row(2).center().toPoint());
    EXPECT_EQ(seenHelp(), "/opt/Tom & Jerry &lt;/editor");
    QToolTip::hideText();
}

TEST_F(ProcessMiniListTest, SaysItsTitleAndThatItIsAList) {
    EXPECT_EQ(utf8(view.accessibleLabel()), "Top CPU Processes");
    EXPECT_EQ(view.accessibleRole(), QAccessible::List);
}

}  // namespace
}  // namespace vantor::process_mini_list_test

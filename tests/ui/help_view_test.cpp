#include "ui/help/help_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QScrollArea>
#include <QScrollBar>

#include "platform/native_machine.h"
#include "ui/cards/cpu_card.h"
#include "ui/cards/memory_card.h"
#include "ui/cards/system_card.h"
#include "ui/cut_texts.h"
#include "ui/dashboard/scroll_view.h"
#include "ui/formatters.h"
#include "ui/gestures.h"
#include "ui/views_world.h"

namespace vantor::help_view_test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

constexpr auto macSummary =
    "Vantor is a local macOS performance dashboard for live CPU, memory, network, GPU, storage, "
    "process and system telemetry.";

/// Titles and texts on a Mac.
const std::vector<std::pair<std::string, std::string>>& macSections() {
    static const std::vector<std::pair<std::string, std::string>> all{
        {"Live Monitoring",
         "Choose a refresh interval from 0.5, 1, 2, 5 or 10 seconds. Pause stops periodic "
         "sampling, "
         "Refresh Now requests a fresh snapshot, and the charts keep only the configured bounded "
         "history."},
        {"Dashboard",
         "CPU shows total and per-logical-processor activity. Memory shows current "
         "pressure-related "
         "usage values. Network reports local interface traffic. GPU values are shown only when "
         "Metal or the active graphics driver publishes them. Storage and power data update at "
         "lower cadences because they do not require sub-second polling."},
        {"Process Explorer",
         "The process list uses native macOS libproc data. Sort by CPU or memory and use the "
         "filter "
         "field to locate a running process. Vantor does not launch external command-line tools to "
         "collect process telemetry."},
        {"Menu Bar and Windows",
         "When the menu bar dashboard is enabled, closing the main window keeps Vantor available "
         "from the menu bar. When it is disabled, closing the last window exits the app. Use Quit "
         "or Command-Q to terminate Vantor completely."},
        {"Export and Privacy",
         "All monitoring is performed locally. Vantor does not perform analytics, public-IP "
         "lookups "
         "or automatic data transmission. A JSON snapshot is written only when you explicitly "
         "choose Export and select a destination."}};
    return all;
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
    return text;
}

class HelpViewTest : public testing::Test {
  protected:
    ViewsWorld world;
    std::unique_ptr<HelpView> view = make();

    std::unique_ptr<HelpView> make() const {
        return std::make_unique<HelpView>(world.machine->processInfo(), world.machine->words());
    }
    void openAt(QSize size) const {
        view->setVisible(true);
        view->resize(size);
        settleEvents();
    }
    int scrolled() const { return view->scrollArea().verticalScrollBar()->value(); }
    int furthest() const { return view->scrollArea().verticalScrollBar()->maximum(); }
};

TEST_F(HelpViewTest, SaysItsTextLetterByLetterOnAMac) {
    EXPECT_EQ(utf8(view->summary().text()), macSummary);
    const auto sections = view->sections();
    ASSERT_EQ(sections.size(), macSections().size());
    for (std::size_t i = 0; i < sections.size(); ++i) {
        EXPECT_EQ(utf8(sections[i]->title().text()), macSections()[i].first);
        EXPECT_EQ(utf8(sections[i]->text().text()), macSections()[i].second);
    }
}

TEST(HelpTexts, OnLinuxTheNamesOfThePlatformAreOthersAndTheNumbersAreExplained) {
    const auto machine = makeNativeMachine();
    const PlatformWords& words = machine->words();
    if (words.systemName != "Linux") GTEST_SKIP() << "the words are another system's";
    EXPECT_EQ(utf8(HelpTexts::summary(words)), replaced(macSummary, "macOS", "Linux"));
    const auto sections = HelpTexts::sections(words);
    ASSERT_EQ(sections.size(), macSections().size() + 1);
    for (std::size_t i = 0; i < macSections().size(); ++i) {
        std::string agreed = replaced(macSections()[i].second, "macOS libproc", "Linux procfs");
        agreed = replaced(agreed, "Metal or the", "NVML or the");
        agreed = replaced(agreed, "Command-Q", "Ctrl+Q");
        EXPECT_EQ(utf8(sections[i].title), macSections()[i].first);
        EXPECT_EQ(utf8(sections[i].text), agreed);
    }
    EXPECT_EQ(utf8(sections.back().title), "What the Numbers Mean");
    const std::string text = utf8(sections.back().text);
    for (const std::string_view meaning :
         {words.meanings.nominal, words.meanings.wired, words.meanings.compressed,
          words.meanings.thermalState, words.meanings.lowPowerMode}) {
        EXPECT_FALSE(meaning.empty());
        EXPECT_NE(text.find(meaning), std::string::npos) << meaning;
    }
    EXPECT_NE(text.find("1 GB is 1,073,741,824 bytes"), std::string::npos);
    EXPECT_EQ(utf8(Formatters::bytes(1'073'741'824)), "1 GB");
    EXPECT_EQ(utf8(Formatters::rate(1'000'000'000)), "1 GB/s");
}

TEST(HelpTexts, TheSameSentencesAreTheHelpOfTheFigures) {
    const FigureMeanings meanings{"of the nominal", "of the wired", "of the compressed",
                                  "of the state", "of the mode"};
    ViewsWorld world;
    CPUCardView cpu(world.machine->processInfo());
    cpu.explain(meanings);
    EXPECT_EQ(utf8(cpu.row(2).row().label), "Nominal");
    EXPECT_EQ(utf8(cpu.row(2).toolTip()), "of the nominal");
    MemoryCardView memory(world.machine->processInfo());
    memory.explain(meanings);
    EXPECT_EQ(utf8(memory.figures().row(1).toolTip()), "of the wired");
    EXPECT_EQ(utf8(memory.figures().row(2).toolTip()), "of the compressed");
    SystemCardView system(world.machine->processInfo());
    system.explain(meanings);
    std::vector<std::string> helps;
    for (QWidget* child : system.findChildren<QWidget*>()) {
        const auto* const row = dynamic_cast<MetricRowView*>(child);
        if (row && !row->toolTip().isEmpty())
            helps.push_back(utf8(row->row().label + QStringLiteral(": ") + row->toolTip()));
    }
    EXPECT_EQ(helps, (std::vector<std::string>{"Thermal State: of the state",
                                               "Low Power Mode: of the mode"}));
}

TEST_F(HelpViewTest, StandsInTheOrderOfTheTextWithItsDistances) {
    openAt({700, 620});
    EXPECT_EQ(view->summary().mapTo(view.get(), QPoint()), QPoint(28, 28));
    int above = view->summary().mapTo(view.get(), QPoint()).y();
    for (HelpSectionView* section : view->sections()) {
        const int top = section->mapTo(view.get(), QPoint()).y();
        EXPECT_GT(top, above);
        above = top;
        EXPECT_EQ(section->text().y() - section->title().geometry().bottom() - 1, 6);
        EXPECT_EQ(section->title().x(), section->text().x());
    }
}

TEST_F(HelpViewTest, ItsTextIsAtMost760WideAndStandsInTheMiddle) {
    openAt({1200, 620});
    EXPECT_EQ(view->sections()[0]->width(), 760);
    EXPECT_EQ(view->sections()[0]->mapTo(view.get(), QPoint()).x(), (1200 - 760) / 2);
    EXPECT_THAT(cutTexts(*view), IsEmpty());
    openAt({560, 480});
    EXPECT_EQ(view->summary().mapTo(view.get(), QPoint()).x(), 28);
    EXPECT_LE(view->sections()[0]->width(), 560 - 2 * 28);
}

TEST_F(HelpViewTest, ItsSmallestSizeIs560By480AndNothingIsCutInIt) {
    EXPECT_EQ(view->minimumSizeHint(), QSize(560, 480));
    openAt({560, 480});
    EXPECT_THAT(cutTexts(*view), IsEmpty());
}

TEST_F(HelpViewTest, NothingIsCutWithALargerFont) {
    const LargerFont larger(1.5);
    view = make();
    for (const QSize size : {QSize(560, 480), view->sizeHint()}) {
        openAt(size);
        EXPECT_THAT(cutTexts(*view), IsEmpty());
    }
}

TEST_F(HelpViewTest, FollowsAFontThatChangesWhileItIsOpen) {
    openAt({560, 480});
    const int before = view->sections()[0]->text().fontInfo().pixelSize();
    const LargerFont larger(1.5);
    settleEvents();
    EXPECT_GT(view->sections()[0]->text().fontInfo().pixelSize(), before);
    EXPECT_THAT(cutTexts(*view), IsEmpty());
}

TEST_F(HelpViewTest, ScrollsByKey) {
    const LargerFont larger(1.5);
    view = make();
    openAt({560, 480});
    ASSERT_GT(furthest(), 0);
    QWidget& focused = view->scrollArea();
    EXPECT_EQ(view->focusProxy(), &focused);
    pressKey(focused, Qt::Key_Down);
    EXPECT_GT(scrolled(), 0);
    pressKey(focused, Qt::Key_End);
    EXPECT_EQ(scrolled(), furthest());
    pressKey(focused, Qt::Key_Home);
    EXPECT_EQ(scrolled(), 0);
    pressKey(focused, Qt::Key_PageDown);
    EXPECT_GT(scrolled(), 100);
    pressKey(focused, Qt::Key_PageUp);
    EXPECT_EQ(scrolled(), 0);
    pressKey(focused, Qt::Key_Space);
    EXPECT_GT(scrolled(), 100);
}

TEST_F(HelpViewTest, MarkedTextTakesNoKeyThatScrolls) {
    const LargerFont larger(1.5);
    view = make();
    openAt({560, 480});
    ParagraphView& text = view->sections()[0]->text();
    EXPECT_TRUE(text.textInteractionFlags() & Qt::TextSelectableByMouse);
    text.setSelection(0, 6);
    EXPECT_EQ(utf8(text.selectedText()), "Choose");
    pressKey(text, Qt::Key_PageDown);
    EXPECT_GT(scrolled(), 100);
}

TEST_F(HelpViewTest, TellsTitlesAsHeadingsAndTextsAsTexts) {
    for (HelpSectionView* section : view->sections()) {
        QAccessibleInterface* title = QAccessible::queryAccessibleInterface(&section->title());
        EXPECT_EQ(title->role(), QAccessible::Heading);
        EXPECT_EQ(title->text(QAccessible::Name), section->title().text());
        QAccessibleInterface* text = QAccessible::queryAccessibleInterface(&section->text());
        EXPECT_EQ(text->role(), QAccessible::StaticText);
        EXPECT_EQ(text->text(QAccessible::Name), section->text().text());
    }
}

TEST_F(HelpViewTest, TextsHaveTheSchemesColours) {
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        view->setPalette(paletteOf(scheme));
        const auto colour = [](const ParagraphView& text) {
            return text.palette().color(QPalette::WindowText);
        };
        EXPECT_EQ(colour(view->summary()), VantorTheme::primaryLabel(scheme));
        EXPECT_EQ(colour(view->sections()[0]->text()), VantorTheme::secondaryLabel(scheme));
    }
}

TEST_F(HelpViewTest, AnOlderSystemHasItsOwnScrollBar) {
    EXPECT_NE(dynamic_cast<VantorScrollView*>(&view->scrollArea()), nullptr);
    world.makeOld();
    view = make();
    EXPECT_EQ(dynamic_cast<VantorScrollView*>(&view->scrollArea()), nullptr);
    EXPECT_NE(dynamic_cast<LegacyVantorScrollView*>(&view->scrollArea()), nullptr);
}

}  // namespace
}  // namespace vantor::help_view_test

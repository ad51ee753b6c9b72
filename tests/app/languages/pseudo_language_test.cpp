#include "app/languages/pseudo_language.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>

#include "app/languages/live_program.h"

namespace vantor::pseudo_language_test {
namespace {

/// What the simulated machine calls itself, its disks, its links, its processes and their files.
const QString namesOfTheMachine = QStringLiteral(
    "program|Simulated|SimBook|macOS|23A344|2001:|Apple|Mac|arm64|x86_64|Darwin|Version|en0|utun|"
    "fe80|"
    "192\\.|\\.local|^/|process|kernel|launchd|Window|Safari|/|InternalBattery|Data|GPU");

class InAPseudoLanguage : public testing::Test {
  protected:
    PseudoLanguage language;
    LiveProgram program;
    VantorApp& app = *program.app;
    MetTexts texts;

    void meetAllWindows() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->isVisible()) texts.meet(*window);
        }
    }

    void expectNothingForeign() const { texts.expectNothingForeign(); }
    void expectNothingForeignButNames() const {
        texts.expectNothingForeignBut(QRegularExpression(namesOfTheMachine));
    }
};

TEST_F(InAPseudoLanguage, TheSettingsHaveNoOtherText) {
    app.openSettings();
    meetAllWindows();
    // The names of the system's interfaces.
    texts.expectNothingForeignBut(
        QRegularExpression(QStringLiteral("Metal \\+ IORegistry|DRM \\+ NVML")));
}

TEST_F(InAPseudoLanguage, TheHelpHasNoOtherText) {
    app.openHelp();
    meetAllWindows();
    expectNothingForeign();
}

TEST_F(InAPseudoLanguage, TheAboutPanelHasNoOtherText) {
    app.openAbout();
    meetAllWindows();
    expectNothingForeign();
}

TEST_F(InAPseudoLanguage, TheDashboardHasNoOtherTextBeforeTheFirstFigures) {
    app.openDashboard();
    texts.meet(*app.dashboardWindow());
    expectNothingForeign();
}

TEST_F(InAPseudoLanguage, TheDashboardHasNoOtherTextThanTheMachinesOwn) {
    program.goLive();
    texts.meet(*app.dashboardWindow());
    expectNothingForeignButNames();
}

TEST_F(InAPseudoLanguage, TheMenusHaveNoOtherText) {
    app.openDashboard();
    int menus = 0;
    for (QMenu* const menu : app.dashboardWindow()->findChildren<QMenu*>()) {
        ++menus;
        texts.meet(menu->title());
        for (const QAction* const action : menu->actions())
            texts.meet(action->text());
    }
    EXPECT_GE(menus, 4) << "two of the menu bar, the interval, the order";
    expectNothingForeign();
}

TEST_F(InAPseudoLanguage, TheTablesHelpAndMenuHaveNoOtherText) {
    program.goLive();
    ProcessTableView& processes = program.table();
    ASSERT_GT(processes.rowCount(), 0u);
    const QRect row = processes.accessibleRowArea(0);
    for (int x = 0; x < processes.width(); x += 4) {
        texts.meet(processes.helpAt(QPointF(x, 2)));
        texts.meet(processes.helpAt(QPointF(x, row.center().y())));
    }
    QContextMenuEvent event(QContextMenuEvent::Mouse, row.center(),
                            processes.mapToGlobal(row.center()));
    QApplication::sendEvent(&processes, &event);
    auto* const menu = processes.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    for (const QAction* const action : menu->actions())
        texts.meet(action->text());
    menu->close();
    expectNothingForeignButNames();
}

TEST_F(InAPseudoLanguage, TheTraysMenuAndPanelHaveNoOtherText) {
    program.goLive();
    for (const StatusMenuEntry& entry : app.menuBar().menu())
        texts.meet(entry.title);
    app.dashboardWindow()->hide();
    app.menuBar().togglePopover(QRect(0, 0, 10, 10));
    settleEvents();
    meetAllWindows();
    expectNothingForeign();
}

}  // namespace
}  // namespace vantor::pseudo_language_test

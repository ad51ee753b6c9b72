#include "app/files/save_panel.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QStyleFactory>
#include <QToolButton>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/files/dialog_desk.h"
#include "app/files/fake_questions.h"
#include "app/files/save_location.h"
#include "app/files/save_panel_fixture.h"
#include "ui/contrast.h"
#include "ui/gestures.h"
#include "ui/rendering.h"
#include "ui/vantor_style.h"

namespace vantor::save_panel_test {
namespace {

TEST_F(SavePanelTest, OpensWithTheProposedNameInTheDocuments) {
    makeFolder("Documents/sub");
    openAndAnswer();
    EXPECT_EQ(utf8(panel->windowTitle()), "Export System Snapshot");
    EXPECT_EQ(utf8(name().selectedText()), "Vantor-1.json");
    EXPECT_EQ(panel->focusWidget(), &name());
    EXPECT_EQ(utf8(folder().text()), utf8(desk.path("Documents")));
    EXPECT_EQ(listed(), std::vector<std::string>{"sub"});
    EXPECT_EQ(notice(), "");
    EXPECT_FALSE(panel->isModal());
    EXPECT_FALSE(panel->testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(SavePanelTest, WithoutDocumentsItOpensAtHomeAndWhereWasSavedLastBeforeBoth) {
    openAndAnswer();
    EXPECT_EQ(utf8(folder().text()), utf8(desk.home()));
    makeFolder("Documents");
    makeFolder("last");
    openAndAnswer(pathOf(desk.path("last")));
    EXPECT_EQ(utf8(folder().text()), utf8(desk.path("last")));
    openAndAnswer(pathOf(desk.path("gone")));
    EXPECT_EQ(utf8(folder().text()), utf8(desk.path("Documents")));
}

TEST_F(SavePanelTest, ALastFolderThatHangsGivesWayToTheDocuments) {
    makeFolder("Documents");
    open("/hung");
    manual.answerNext();  // the places
    EXPECT_EQ(utf8(folder().text()), "/hung");
    manual.passPatience();
    manual.answerAll();
    EXPECT_EQ(utf8(folder().text()), utf8(desk.path("Documents")));
    EXPECT_EQ(notice(), "");
}

TEST_F(SavePanelTest, AHomeThatHangsLeavesADialogThatSavesElsewhere) {
    QTemporaryDir elsewhere;
    open();
    manual.passPatience();  // the places
    manual.passPatience();  // home
    EXPECT_EQ(notice(), "The disk does not answer. Please choose another folder, or try again.");
    const std::size_t hanging = manual.waiting();
    EXPECT_EQ(hanging, 2u);
    save(elsewhere.filePath(QStringLiteral("a")));
    manual.answerAll();
    EXPECT_EQ(panel->result(), QDialog::Accepted);
    EXPECT_EQ(panel->destination(), pathOf(elsewhere.filePath(QStringLiteral("a.json"))));
}

TEST_F(SavePanelTest, WhoSavesBeforeTheFirstFolderIsKnownIsFasterThanTheDisk) {
    open();
    save(desk.path("a"));
    manual.answerNext();  // the places
    EXPECT_EQ(notice(), "Checking…");
    manual.answerAll();
    EXPECT_EQ(panel->result(), QDialog::Accepted);
}

TEST_F(SavePanelTest, AHungDestinationIsToldAndCanBeCancelled) {
    openAndAnswer();
    save(QStringLiteral("/hung/a"));
    EXPECT_EQ(notice(), "Checking…");
    EXPECT_FALSE(saveButton().isEnabled());
    manual.passPatience();
    EXPECT_EQ(notice(), "The disk does not answer. Please choose another folder, or try again.");
    EXPECT_TRUE(saveButton().isEnabled()) << "to try again";
    pressKey(*panel, Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(panel->result(), QDialog::Rejected);
}

TEST_F(SavePanelTest, AnotherNameWhileOneIsCheckedIsAnotherQuestion) {
    openAndAnswer();
    save(desk.path("a"));
    type(name(), QStringLiteral("b"));
    EXPECT_TRUE(saveButton().isEnabled());
    EXPECT_EQ(notice(), "");
    manual.answerAll();
    EXPECT_TRUE(panel->isVisible()) << "that name is not wanted any more";
}

TEST_F(SavePanelTest, AFileThatIsThereIsReplacedOnlyWhenTheUserSaysSo) {
    makeFile("a.json");
    openAndAnswer();
    save(QStringLiteral("a"));
    manual.answerAll();
    ASSERT_NE(question(), nullptr);
    EXPECT_EQ(utf8(question()->text()), "\"a.json\" already exists. Do you want to replace it?");
    EXPECT_EQ(question()->textFormat(), Qt::PlainText);
    pressKey(*question(), Qt::Key_Escape);
    settleEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(panel->isVisible()) << "for another name";
    save(QStringLiteral("a.json"));
    manual.answerAll();
    ASSERT_NE(question(), nullptr);
    button(*question(), u"&Replace").click();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(panel->destination(), pathOf(desk.path("a.json")));
}

TEST_F(SavePanelTest, WhatCannotBeSavedSaysWhyAndStaysOpen) {
    struct Row {
        QString typed;
        std::string said;
    };
    makeFile("file.json");
    for (const Row& row :
         {Row{QString(), "Please type a name for the file."},
          Row{desk.path("nowhere/a"), "\"a.json\" could not be saved. The folder does not exist."},
          Row{desk.path("file.json/a"),
              "\"a.json\" could not be saved. The place for it is not a folder."}}) {
        openAndAnswer();
        save(row.typed);
        manual.answerAll();
        EXPECT_EQ(notice(), row.said);
        EXPECT_TRUE(panel->isVisible());
        EXPECT_TRUE(saveButton().isEnabled());
    }
}

}  // namespace
}  // namespace vantor::save_panel_test

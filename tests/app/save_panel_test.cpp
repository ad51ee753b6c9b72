#include "app/save/save_panel.h"

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

#include "app/dialog_desk.h"
#include "app/manual_questions.h"
#include "app/save/save_location.h"
#include "ui/contrast.h"
#include "ui/gestures.h"
#include "ui/rendering.h"
#include "ui/vantor_style.h"

/// Each answer of the disk comes when the test says so: one that hangs is one that never does.
namespace vantor::save_panel_test {
namespace {

class SavePanelTest : public testing::Test {
  protected:
    void open(const std::filesystem::path& folder = {}) {
        panel =
            std::make_unique<SavePanel>(SavePanel::Request{QStringLiteral("Export System Snapshot"),
                                                           QStringLiteral("Vantor-1.json"),
                                                           QStringLiteral("json"), true, folder},
                                        manual.questions, nullptr);
        panel->show();
    }
    void openAndAnswer(const std::filesystem::path& folder = {}) {
        open(folder);
        manual.answerAll();
    }
    void makeFolder(const char* name) const { QDir(desk.home()).mkpath(QString::fromUtf8(name)); }
    void makeFile(const char* name) const {
        ASSERT_TRUE(QFile(desk.path(name)).open(QIODevice::WriteOnly));
    }

    QLineEdit& name() const { return *panel->findChild<QLineEdit*>(QStringLiteral("name")); }
    QLineEdit& folder() const { return *panel->findChild<QLineEdit*>(QStringLiteral("folder")); }
    /// Those are of no class that the toolkit's own search knows.
    template <class Part>
    Part& part() const {
        for (QWidget* const each : panel->findChildren<QWidget*>()) {
            if (auto* const found = dynamic_cast<Part*>(each)) return *found;
        }
        throw std::logic_error("the panel has no such part");
    }
    FolderView& list() const { return part<FolderView>(); }
    std::string notice() const { return utf8(part<SaveNotice>().text()); }
    QPushButton& saveButton() const { return button(*panel, u"&Save"); }

    static QPushButton& button(QWidget& window, QStringView text) {
        for (QPushButton* const each : window.findChildren<QPushButton*>()) {
            if (each->text() == text) return *each;
        }
        ADD_FAILURE() << "no button " << text.toString().toStdString();
        return *window.findChild<QPushButton*>();
    }
    QToolButton& tool(QStringView name) const {
        for (QToolButton* const each : panel->findChildren<QToolButton*>()) {
            if (each->accessibleName() == name) return *each;
        }
        ADD_FAILURE() << "no button " << name.toString().toStdString();
        return *panel->findChild<QToolButton*>();
    }
    static void type(QLineEdit& field, const QString& text) {
        field.selectAll();
        field.insert(text);
        Q_EMIT field.textEdited(text);
    }
    void save(const QString& text) {
        type(name(), text);
        saveButton().click();
    }
    std::vector<std::string> listed() const {
        std::vector<std::string> names;
        for (const FolderEntry& entry : list().entries())
            names.push_back(entry.name);
        return names;
    }
    void activate(int row) const { Q_EMIT list().activated(list().model()->index(row, 0)); }
    QMessageBox* question() const { return panel->findChild<QMessageBox*>(); }

    DialogDesk desk;
    ManualQuestions manual;
    std::unique_ptr<SavePanel> panel;
};

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

TEST_F(SavePanelTest, AFolderInPlaceOfANameIsGoneInto) {
    makeFolder("sub/deeper");
    openAndAnswer();
    save(QStringLiteral("sub/"));
    manual.answerAll();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(utf8(folder().text()), utf8(desk.path("sub")));
    EXPECT_EQ(utf8(name().text()), "Vantor-1.json");
    EXPECT_EQ(listed(), std::vector<std::string>{"deeper"});
}

TEST_F(SavePanelTest, FoldersAreBrowsedByListLineAndButton) {
    makeFolder("sub/deeper");
    openAndAnswer();
    activate(0);
    manual.answerAll();
    EXPECT_EQ(utf8(folder().text()), utf8(desk.path("sub")));
    tool(u"Parent folder (Alt+Up)").click();
    manual.answerAll();
    EXPECT_EQ(utf8(folder().text()), utf8(desk.home()));
    folder().setFocus();
    type(folder(), desk.path("sub/deeper"));
    pressKey(folder(), Qt::Key_Return);
    manual.answerAll();
    EXPECT_TRUE(panel->isVisible()) << "Return was the line's";
    saveButton().click();
    manual.answerAll();
    EXPECT_EQ(panel->destination(), pathOf(desk.path("sub/deeper/Vantor-1.json")));
}

TEST_F(SavePanelTest, APlaceIsOneClickAway) {
    makeFolder("Documents");
    openAndAnswer();
    auto& places = *panel->findChild<QListWidget*>();
    ASSERT_EQ(places.count(), 2);
    EXPECT_EQ(utf8(places.item(0)->text()), "Home");
    Q_EMIT places.itemClicked(places.item(0));
    manual.answerAll();
    EXPECT_EQ(utf8(folder().text()), utf8(desk.home()));
}

TEST_F(SavePanelTest, AFileOfTheListGivesItsName) {
    makeFile("old.json");
    makeFile("not utf-8 \xff.txt");
    openAndAnswer();
    EXPECT_EQ(listed(), std::vector<std::string>{"old.json"});
    activate(0);
    EXPECT_EQ(utf8(name().text()), "old.json");
    manual.answerAll();
    EXPECT_NE(question(), nullptr) << "Return on a file is to save it there";
}

TEST_F(SavePanelTest, ANewFolderIsMadeAndGoneInto) {
    openAndAnswer();
    tool(u"New folder").click();
    auto* const box = panel->findChild<QInputDialog*>();
    ASSERT_NE(box, nullptr);
    box->setTextValue(QStringLiteral("fresh"));
    box->accept();
    manual.answerAll();
    EXPECT_TRUE(QDir(desk.path("fresh")).exists());
    EXPECT_EQ(utf8(folder().text()), utf8(desk.path("fresh")));
}

TEST_F(SavePanelTest, FoldersAreMadeOnlyWhereThatIsAllowed) {
    panel = std::make_unique<SavePanel>(
        SavePanel::Request{QStringLiteral("T"), QStringLiteral("n"), {}, false, {}},
        manual.questions, nullptr);
    panel->show();
    EXPECT_FALSE(tool(u"New folder").isVisible());
}

TEST_F(SavePanelTest, AFolderThatCannotBeReadSaysWhy) {
    openAndAnswer();
    folder().setFocus();
    type(folder(), desk.path("nowhere"));
    pressKey(folder(), Qt::Key_Return);
    manual.answerAll();
    EXPECT_EQ(notice(), "The folder does not exist.");
    EXPECT_TRUE(listed().empty());
}

TEST_F(SavePanelTest, EverythingHasANameForScreenReaders) {
    openAndAnswer();
    EXPECT_EQ(utf8(list().accessibleName()), "Folders and files");
    EXPECT_EQ(utf8(panel->findChild<QListWidget*>()->accessibleName()), "Places");
    std::vector<const QWidget*> named;
    for (const QLabel* const label : panel->findChildren<QLabel*>()) {
        if (label->buddy()) named.push_back(label->buddy());
    }
    EXPECT_EQ(named, (std::vector<const QWidget*>{&name(), &folder()}));
    makeFolder("sub");
    openAndAnswer();
    EXPECT_EQ(utf8(list().model()->index(0, 0).data(Qt::AccessibleTextRole).toString()),
              "sub, folder");
}

TEST_F(SavePanelTest, EveryTextCanBeReadInBothSchemes) {
    QApplication::setStyle(std::make_unique<VantorStyle>().release());  // takes ownership
    makeFolder("sub");
    for (const auto scheme : {ColorScheme::dark, ColorScheme::light}) {
        QApplication::setPalette(paletteOf(scheme));
        openAndAnswer();
        type(folder(), desk.path("nowhere"));
        saveButton().click();
        manual.answerAll();
        for (QWidget* const part : std::initializer_list<QWidget*>{
                 &name(), &folder(), &list(), &saveButton(), &part<SaveNotice>()}) {
            const QRect place(part->mapTo(panel.get(), QPoint()), part->size());
            EXPECT_GE(contrastIn(panel->grab(place).toImage()), 4.5)
                << part->metaObject()->className();
        }
    }
    panel.reset();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(paletteOf(ColorScheme::dark));
}

}  // namespace
}  // namespace vantor::save_panel_test

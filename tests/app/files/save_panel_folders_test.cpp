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
#include "app/files/save_panel.h"
#include "app/files/save_panel_fixture.h"
#include "ui/contrast.h"
#include "ui/gestures.h"
#include "ui/rendering.h"
#include "ui/vantor_style.h"

namespace vantor::save_panel_folders_test {
namespace {

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
}  // namespace vantor::save_panel_folders_test

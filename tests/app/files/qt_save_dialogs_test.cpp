#include "app/files/qt_save_dialogs.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <optional>
#include <string>
#include <vector>

#include "app/files/dialog_desk.h"
#include "app/files/save_location.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::qt_save_dialogs_test {
namespace {

using Path = std::filesystem::path;

const SaveRequest request{"Export System Snapshot", "Vantor-2026-02-03-090507.json",
                          "application/json", true};

class SaveDialogTest : public testing::Test {
  protected:
    void begin(const SaveRequest& what = request) {
        dialog = dialogs.makeSaveDialog(what);
        dialog->begin([this](const std::optional<Path>& destination) {
            EXPECT_FALSE(isBeginning) << "never from within begin";
            answers.push_back(destination);
        });
        isBeginning = false;
    }

    static QFileDialog& shown() { return *DialogDesk::shown<QFileDialog>(); }
    static bool isShown() { return DialogDesk::shown<QFileDialog>() != nullptr; }
    static QLineEdit& field() {
        return *shown().findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    }
    static void save(const QString& name) {
        field().setText(name);
        shown().findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    }

    /// Saves under the name of a file that is there, and answers what is asked then.
    QString saveOver(const QString& name, QMessageBox::StandardButton answer) {
        QString question;
        DialogDesk::meanwhile([&] {
            auto* const box = DialogDesk::shown<QMessageBox>();
            ASSERT_NE(box, nullptr);
            question = box->text();
            box->button(answer)->click();
        });
        save(name);
        QApplication::processEvents();
        return question;
    }

    DialogDesk desk;
    QtSaveDialogs dialogs;
    std::unique_ptr<SaveDialog> dialog;
    bool isBeginning = true;
    std::vector<std::optional<Path>> answers;
};

TEST_F(SaveDialogTest, AsksBesideEverythingElseWhatItIsToAsk) {
    begin();
    ASSERT_TRUE(isShown());
    EXPECT_EQ(utf8(shown().windowTitle()), "Export System Snapshot");
    EXPECT_EQ(shown().acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(shown().fileMode(), QFileDialog::AnyFile);
    EXPECT_EQ(shown().nameFilters(), QStringList(QStringLiteral("JSON document (*.json)")));
    EXPECT_EQ(utf8(shown().defaultSuffix()), "json");
    EXPECT_EQ(utf8(field().text()), "Vantor-2026-02-03-090507.json");
    EXPECT_FALSE(shown().isModal());
    EXPECT_FALSE(shown().testOption(QFileDialog::DontUseNativeDialog));
    EXPECT_FALSE(shown().testOption(QFileDialog::DontConfirmOverwrite));
    EXPECT_FALSE(shown().testOption(QFileDialog::ReadOnly)) << "folders may be made";
    EXPECT_FALSE(shown().testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(SaveDialogTest, FoldersAreMadeOnlyWhereThatIsAllowed) {
    SaveRequest inOldFolders = request;
    inOldFolders.mayCreateFolders = false;
    begin(inOldFolders);
    EXPECT_TRUE(shown().testOption(QFileDialog::ReadOnly));
}

TEST_F(SaveDialogTest, GivesTheConfirmedFileOnceAndInATurnOfItsOwn) {
    begin();
    save(desk.path("a.json"));
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(answers.empty()) << "not from within the dialog's doing";
    QApplication::processEvents();
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0], pathOf(desk.path("a.json")));
    dialog.reset();
    QApplication::processEvents();
    EXPECT_EQ(answers.size(), 1u);
}

TEST_F(SaveDialogTest, ANameWithoutAnEndingGetsThatOfItsKind) {
    begin();
    save(desk.path("a"));
    QApplication::processEvents();
    EXPECT_EQ(answers.at(0), pathOf(desk.path("a.json")));
    begin();
    save(desk.path("b.txt"));
    QApplication::processEvents();
    EXPECT_EQ(answers.at(1), pathOf(desk.path("b.txt"))) << "one that the user gave stays";
}

TEST_F(SaveDialogTest, ANameIsGivenInTheSystemsBytes) {
    for (const char* const name : {"schön.json", "\U0001F600 <b>&amp;'.json", "日本 語.json"}) {
        begin();
        save(desk.path(name));
        QApplication::processEvents();
        EXPECT_EQ(answers.back()->filename().native(), name);
    }
}

TEST_F(SaveDialogTest, ClosedInAnyOtherWayItGivesNone) {
    const std::vector<std::function<void()>> ways{
        [] { shown().findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click(); },
        [] { pressKey(shown(), Qt::Key_Escape); }, [] { shown().close(); },
        [] { shown().reject(); }};
    for (const auto& close : ways) {
        answers.clear();
        begin();
        close();
        EXPECT_FALSE(isShown());
        QApplication::processEvents();
        EXPECT_EQ(answers, std::vector<std::optional<Path>>{std::nullopt});
    }
}

TEST_F(SaveDialogTest, AFileThatIsThereIsReplacedOnlyWhenTheUserSaysSo) {
    ASSERT_TRUE(QFile(desk.path("a.json")).open(QIODevice::WriteOnly));
    begin();
    EXPECT_TRUE(saveOver(desk.path("a.json"), QMessageBox::No).contains(u"a.json"));
    EXPECT_TRUE(isShown()) << "for another name";
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(saveOver(desk.path("a"), QMessageBox::Yes).contains(u"a.json"))
        << "what is asked for is the completed name";
    EXPECT_EQ(answers, std::vector<std::optional<Path>>{pathOf(desk.path("a.json"))});
}

TEST_F(SaveDialogTest, DestroyedWhileItIsOpenItIsGoneAndSaysNothing) {
    begin();
    dialog.reset();
    EXPECT_FALSE(isShown());
    QApplication::processEvents();
    begin();
    save(desk.path("a.json"));
    dialog.reset();  // confirmed, and not told yet
    QApplication::processEvents();
    EXPECT_TRUE(answers.empty());
}

TEST_F(SaveDialogTest, BelongsToTheFrontWindowAndIsOverWithIt) {
    auto window = std::make_unique<QWidget>();
    window->show();
    QWidget passing(nullptr, Qt::Popup);
    passing.show();
    begin();
    EXPECT_EQ(shown().parentWidget(), window.get());
    window.reset();
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(answers.empty()) << "not from within the window's end";
    QApplication::processEvents();
    EXPECT_EQ(answers, std::vector<std::optional<Path>>{std::nullopt});
}

TEST_F(SaveDialogTest, ConfirmedItGivesTheFileOnceThoughItsWindowGoes) {
    auto window = std::make_unique<QWidget>();
    window->show();
    begin();
    save(desk.path("a.json"));
    window.reset();
    QApplication::processEvents();
    EXPECT_EQ(answers, std::vector<std::optional<Path>>{pathOf(desk.path("a.json"))});
}

TEST_F(SaveDialogTest, BegunAfterItsWindowHasGoneItIsOverAtOnce) {
    auto window = std::make_unique<QWidget>();
    window->show();
    dialog = dialogs.makeSaveDialog(request);
    window.reset();
    dialog->begin([this](const std::optional<Path>& answer) { answers.push_back(answer); });
    EXPECT_TRUE(answers.empty());
    QApplication::processEvents();
    EXPECT_EQ(answers, std::vector<std::optional<Path>>{std::nullopt});
}

TEST_F(SaveDialogTest, OpensInTheDocumentsAndThenWhereWasSavedLast) {
    const auto folder = [this] {
        begin();
        return utf8(shown().directory().path());
    };
    QDir(desk.home()).mkdir(QStringLiteral("Documents"));
    EXPECT_EQ(folder(), utf8(desk.path("Documents")));
    QDir(desk.home()).mkdir(QStringLiteral("elsewhere"));
    save(desk.path("elsewhere/a.json"));
    EXPECT_EQ(folder(), utf8(desk.path("elsewhere")));
    shown().reject();
    EXPECT_EQ(folder(), utf8(desk.path("elsewhere"))) << "a cancelled dialog changes nothing";
}

}  // namespace
}  // namespace vantor::qt_save_dialogs_test

#include <QMessageBox>

#include "app/files/save_panel_fixture.h"
#include "app/languages/pseudo_language.h"
#include "app/qt_alerts.h"
#include "ui/core_words.h"

namespace vantor::pseudo_dialogs_test {
namespace {

/// The dialog that asks where to save, and what it goes on to ask.
class SavePanelInAPseudoLanguage : public SavePanelTest {
  protected:
    PseudoLanguage language;
    MetTexts texts;

    void pressSave() const {
        for (QPushButton* const each : panel->findChildren<QPushButton*>()) {
            if (each->isDefault()) each->click();
        }
    }

    /// The title is the caller's. The machine's folders; and the kinds of files, which are told
    /// with their endings.
    void expectNothingForeign() const {
        texts.expectNothingForeignBut(QRegularExpression(
            QStringLiteral("^Export System Snapshot$|^/|^sub$|^a\\.json$|^Vantor-1\\.json$|\\*")));
    }
};

TEST_F(SavePanelInAPseudoLanguage, ItHasNoOtherText) {
    makeFolder("Documents/sub");
    open();
    texts.meet(*panel);
    manual.answerAll();
    texts.meet(*panel);
    expectNothingForeign();
}

TEST_F(SavePanelInAPseudoLanguage, ItsWarningsHaveNoOtherText) {
    openAndAnswer();
    for (const char* const folder : {"/nowhere", "/dev/null"}) {
        type(this->folder(), QString::fromUtf8(folder));
        Q_EMIT this->folder().returnPressed();
        manual.answerAll();
        EXPECT_NE(notice(), "");
        texts.meet(*panel);
    }
    type(name(), QString());
    pressSave();
    EXPECT_NE(notice(), "");
    texts.meet(*panel);
    expectNothingForeign();
}

TEST_F(SavePanelInAPseudoLanguage, TheQuestionWhetherToReplaceHasNoOtherText) {
    makeFolder("Documents");
    makeFile("Documents/a.json");
    openAndAnswer();
    type(name(), QStringLiteral("a.json"));
    pressSave();
    manual.answerAll();
    ASSERT_NE(question(), nullptr);
    texts.meet(question()->text());
    texts.meet(question()->windowTitle());
    for (const QAbstractButton* const each : question()->buttons())
        texts.meet(each->text());
    question()->reject();
    expectNothingForeign();
}

TEST(AlertsInAPseudoLanguage, HaveNoOtherTextThanAFilesName) {
    const PseudoLanguage language;
    MetTexts texts;
    int shown = 0;
    for (const char* const why : {"There is not enough space on the disk.",
                                  "You do not have the permission to write there."}) {
        DialogDesk::meanwhile([&] {
            auto* const box = DialogDesk::shown<QMessageBox>();
            ASSERT_NE(box, nullptr);
            ++shown;
            texts.meet(box->windowTitle());
            texts.meet(box->text());
            texts.meet(box->informativeText());
            for (const QAbstractButton* const each : box->buttons())
                texts.meet(each->text());
            box->accept();
        });
        QtAlerts().runModal(
            {"Snapshot Export Failed", std::string("\"1\" could not be saved. ") + why});
    }
    EXPECT_EQ(shown, 2);
    texts.expectNothingForeign();
}

}  // namespace
}  // namespace vantor::pseudo_dialogs_test

#include "app/qt_alerts.h"

#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QTextBoundaryFinder>

#include <memory>

#include "app/window/front_window.h"
#include "ui/components/make_child.h"
#include "ui/core_words.h"
#include "ui/shown_text.h"

namespace vantor {

namespace {

constexpr int maxWordLength = 40;  // characters, as users count them

/// Plain text, as a file's name may look like markup. The box itself would ensure that only for its
/// first text.
void showPlain(const QMessageBox& box, const QString& label, const QString& text, int weight) {
    auto* const shown = box.findChild<QLabel*>(label);
    if (!shown) return;
    shown->setTextFormat(Qt::PlainText);
    shown->setWordWrap(true);
    shown->setAccessibleName(text);
    QFont font = shown->font();
    font.setWeight(static_cast<QFont::Weight>(weight));
    shown->setFont(font);
}

QMessageBox* makeBox(const AlertText& text, QWidget* window) {
    auto* const box = makeChild<QMessageBox>(window);
    const QString message = wordedForPeople(text.message);
    const QString information = wordedForPeople(text.informativeText);
    box->setIcon(QMessageBox::Critical);
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(message);
    box->setText(QtAlerts::breakable(message));
    box->setInformativeText(QtAlerts::breakable(information));
    showPlain(*box, QStringLiteral("qt_msgbox_label"), message, QFont::Bold);
    showPlain(*box, QStringLiteral("qt_msgbox_informativelabel"), information, QFont::Normal);
    // Wide enough for its title, and for a sentence per line.
    auto* const lines = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
    if (lines) lines->setMinimumWidth(lines->fontMetrics().averageCharWidth() * 56);
    box->setStandardButtons(QMessageBox::Ok);
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
    box->setWindowModality(window ? Qt::WindowModal : Qt::ApplicationModal);
    box->setAttribute(Qt::WA_QuitOnClose, false);
    return box;
}

}  // namespace

void QtAlerts::runModal(const AlertText& text) {
    const QPointer<QMessageBox> box = makeBox(text, frontWindow());
    box->exec();
    // Unless its parent window has destroyed it.
    const std::unique_ptr<QMessageBox> over(box.data());
}

QString QtAlerts::breakable(const QString& text) {
    QString result;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    int length = 0;
    for (qsizetype start = 0; characters.toNextBoundary() > 0; start = characters.position()) {
        const QStringView character =
            QStringView(text).sliced(start, characters.position() - start);
        length = character.front().isSpace() ? 0 : length + 1;
        if (length > maxWordLength) {
            result += QChar(0x200B);
            length = 1;
        }
        result += character;
    }
    return result;
}

}  // namespace vantor

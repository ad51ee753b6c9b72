#include "app/qt_alerts.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <functional>
#include <memory>
#include <string>

#include "app/files/dialog_desk.h"
#include "app/files/qt_export_platform.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::qt_alerts_test {
namespace {

const AlertText failed{"Snapshot Export Failed",
                       "\"a.json\" could not be saved. There is not enough space on the disk."};

QLabel* label(const QMessageBox& box, const char* name) {
    return box.findChild<QLabel*>(QLatin1StringView(name));
}

/// Shows the alert, and does `look` with it while it is on the screen; true when it was and is no
/// more.
bool showAlert(const AlertText& text, const std::function<void(QMessageBox&)>& look) {
    bool wasThere = false;
    DialogDesk::meanwhile([&] {
        auto* const box = DialogDesk::shown<QMessageBox>();
        ASSERT_NE(box, nullptr);
        wasThere = true;
        look(*box);
    });
    QtAlerts().runModal(text);
    return wasThere && !DialogDesk::shown<QMessageBox>();
}

TEST(QtAlerts, TellsWhatHappenedBoldAndWhyInFrontOfTheFrontWindow) {
    QWidget window;
    window.show();
    EXPECT_TRUE(showAlert(failed, [&](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(utf8(box.windowTitle()), "Snapshot Export Failed");
        EXPECT_EQ(utf8(box.text()), "Snapshot Export Failed");
        EXPECT_EQ(utf8(box.informativeText()), failed.informativeText);
        EXPECT_TRUE(label(box, "qt_msgbox_label")->font().bold());
        EXPECT_FALSE(label(box, "qt_msgbox_informativelabel")->font().bold());
        EXPECT_EQ(box.parentWidget(), &window);
        EXPECT_EQ(box.windowModality(), Qt::WindowModal);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        EXPECT_FALSE(box.testAttribute(Qt::WA_QuitOnClose));
        box.accept();
    }));
}

TEST(QtAlerts, EscapeAndEnterDismissIt) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter})
        EXPECT_TRUE(showAlert(failed, [&](QMessageBox& box) { pressKey(box, key); })) << key;
}

TEST(QtAlerts, ANameThatLooksLikeMarkupIsShownAsItIs) {
    const std::string name = "<b>a</b> &amp; <img src=x>.json";
    EXPECT_TRUE(showAlert({name, name}, [&](QMessageBox& box) {
        for (const char* const part : {"qt_msgbox_label", "qt_msgbox_informativelabel"}) {
            const QLabel* const shown = label(box, part);
            EXPECT_EQ(shown->textFormat(), Qt::PlainText) << part;
            EXPECT_EQ(utf8(shown->text()), name) << part;
        }
        box.accept();
    }));
}

TEST(QtAlerts, ALongNameGoesOnInTheNextLine) {
    const std::string name(255, 'x');
    EXPECT_TRUE(showAlert({"Failed", name}, [&](QMessageBox& box) {
        const QLabel* const shown = label(box, "qt_msgbox_informativelabel");
        EXPECT_LT(box.width(), 700);
        const QRect needed = shown->fontMetrics().boundingRect(QRect(0, 0, shown->width(), 10'000),
                                                               Qt::TextWordWrap, shown->text());
        EXPECT_LE(needed.width(), shown->width());
        EXPECT_LE(needed.height(), shown->height());
        EXPECT_EQ(utf8(shown->accessibleName()), name);
        box.accept();
    }));
}

TEST(QtAlerts, IsOverWhenItsWindowGoes) {
    auto window = std::make_unique<QWidget>();
    window->show();
    EXPECT_TRUE(showAlert(failed, [&](QMessageBox&) { window.reset(); }));
}

TEST(QtAlerts, OnlyWordsThatAreTooLongAreMadeBreakable) {
    const auto breakable = [](const char* text) {
        return utf8(QtAlerts::breakable(QString::fromUtf8(text)));
    };
    EXPECT_EQ(breakable(""), "");
    EXPECT_EQ(breakable("of ordinary words, as long as the sentence may be"),
              "of ordinary words, as long as the sentence may be");
    const QString longName = QString(200, u'x');
    const QString broken = QtAlerts::breakable(longName);
    EXPECT_GE(broken.count(QChar(0x200B)), 4);
    EXPECT_EQ(QString(broken).remove(QChar(0x200B)), longName);
    // Never within what people take for one character.
    const QString waving = QStringLiteral("\U0001F44B\U0001F3FD");
    for (const QString& part : QtAlerts::breakable(waving.repeated(60)).split(QChar(0x200B)))
        EXPECT_EQ(part.size() % waving.size(), 0);
}

TEST(QtExportPlatform, IsWhole) {
    EXPECT_TRUE(makeQtExportPlatform().isWhole());
}

}  // namespace
}  // namespace vantor::qt_alerts_test

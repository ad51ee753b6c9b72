#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "app/languages/catalogue_file.h"
#include "app/languages/live_program.h"
#include "app/user_language.h"
#include "ui/cut_texts.h"
#include "ui/drawing/background_view.h"
#include "ui/rendering.h"

/// Whether each language's texts have the room that they need, in every window.
namespace vantor::room_test {
namespace {

using testing::IsEmpty;

std::vector<QString> languagesAndEnglish() {
    std::vector<QString> all{QStringLiteral("en")};
    for (const QString& language : completeLanguages())
        all.push_back(language);
    return all;
}

class RoomOfLanguages : public testing::TestWithParam<QString> {
  protected:
    const UserLanguage language{{GetParam()}};
    LiveProgram program;
    VantorApp& app = *program.app;
    std::vector<QRegularExpression> ours;

    void SetUp() override {
        QLocale::setDefault(QLocale(GetParam()));
        for (const CatalogueMessage& message : readCatalogue(GetParam())) {
            for (const QString& text : message.translations)
                ours.push_back(patternOf(text));
        }
    }
    void TearDown() override { QLocale::setDefault(QLocale::c()); }

    static QRegularExpression patternOf(const QString& text) {
        QString pattern = QRegularExpression::escape(text);
        pattern.replace(QRegularExpression(QStringLiteral("\\\\%(L?n|\\d)")), QStringLiteral(".*"));
        // What stands for anything is no text of ours.
        const bool isAnything = QString(pattern).remove(QStringLiteral(".*")).size() < 3;
        return QRegularExpression(isAnything ? QStringLiteral("^\\b$")
                                             : QRegularExpression::anchoredPattern(pattern));
    }

    /// The program's own texts that `window`, drawn at `scale`, has cut. What the machine calls
    /// itself and its parts may be cut.
    std::set<std::string> cutLines(QWidget& window, double scale) const {
        QImage image((QSizeF(window.size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        window.render(&image);
        std::set<std::string> cut;
        for (const QWidget* const child : window.findChildren<QWidget*>()) {
            BackgroundView* const below = BackgroundView::behind(*child);
            if (!below) continue;
            for (const QString& line : below->kit().shapes.cutLines()) {
                const bool isOurs = std::ranges::any_of(
                    ours, [&](const auto& pattern) { return pattern.match(line).hasMatch(); });
                if (isOurs) cut.insert(utf8(line));
            }
        }
        return cut;
    }
};

INSTANTIATE_TEST_SUITE_P(Each, RoomOfLanguages, testing::ValuesIn(languagesAndEnglish()),
                         [](const auto& given) { return utf8(given.param); });

TEST_P(RoomOfLanguages, TheDashboardCutsNoneOfTheirTexts) {
    program.goLive();
    QWidget& window = *app.dashboardWindow();
    for (const QSize size : {QSize(720, 560), QSize(1280, 820)}) {
        window.resize(size);
        settleEvents();
        ASSERT_EQ(window.size(), size);
        for (const double scale : {1.0, 1.5})
            EXPECT_THAT(cutLines(window, scale), IsEmpty()) << size.width() << " at " << scale;
    }
}

TEST_P(RoomOfLanguages, TheTraysPanelCutsNoneOfTheirTexts) {
    program.goLive();
    app.dashboardWindow()->hide();
    app.menuBar().togglePopover(QRect(0, 0, 10, 10));
    settleEvents();
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        EXPECT_THAT(cutLines(*window, 1), IsEmpty());
        EXPECT_THAT(cutLines(*window, 1.5), IsEmpty());
    }
}

TEST_P(RoomOfLanguages, TheSettingsAndTheHelpCutNoneOfTheirTexts) {
    app.openSettings();
    app.openHelp();
    settleEvents();
    for (QWidget* const window :
         std::initializer_list<QWidget*>{app.settingsWindow(), app.helpWindow()}) {
        EXPECT_THAT(cutTexts(*window), IsEmpty());
        EXPECT_THAT(cutLines(*window, 1), IsEmpty());
        EXPECT_THAT(cutLines(*window, 1.5), IsEmpty());
    }
}

}  // namespace
}  // namespace vantor::room_test

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <memory>
#include <string>
#include <vector>

#include "app/tray/fake_status_bar.h"
#include "app/vantor_app.h"
#include "platform/simulated/simulated_machine.h"
#include "ui/contrast.h"
#include "ui/rendering.h"
#include "ui/vantor_style.h"

namespace vantor::readable_texts_test {
namespace {

constexpr double minContrast = 4.5;

/// The whole program in its own style; every text that can be seen is measured.
class ReadableTexts : public testing::Test {
  protected:
    QTemporaryDir folder;
    std::unique_ptr<VantorApp> app;

    void SetUp() override {
        QApplication::setStyle(std::make_unique<VantorStyle>().release());  // takes ownership
        app = makeVantorApp({SimulatedMachine::laptop(),
                             folder.filePath(QStringLiteral("settings.ini")),
                             std::make_shared<FakeStatusBar>(), [] {}});
        app->openDashboard();
    }
    void TearDown() override {
        app.reset();
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        QApplication::setPalette(paletteOf(ColorScheme::dark));
    }

    void choose(Appearance appearance) {
        app->settings().setAppearance(appearance);
        settleEvents();
    }

    static void expectReadable(const QImage& image, const std::string& what) {
        EXPECT_GE(contrastIn(image), minContrast) << what << " cannot be read";
    }

    static void expectReadableMenus(QMenuBar& bar, const std::string& when) {
        const QImage picture = bar.window()->grab().toImage();
        for (QAction* const entry : bar.actions()) {
            const QRect area = bar.actionGeometry(entry);
            const QRect place(bar.mapTo(bar.window(), area.topLeft()), area.size());
            expectReadable(picture.copy(place), when + ", menu bar: " + utf8(entry->text()));
            QMenu& menu = *entry->menu();
            menu.popup(QPoint(0, 0));
            settleEvents();
            const QImage opened = menu.grab().toImage();
            for (QAction* const action : menu.actions()) {
                if (action->isSeparator() || !action->isEnabled()) continue;
                expectReadable(opened.copy(menu.actionGeometry(action)),
                               when + ", menu: " + utf8(action->text()));
            }
            menu.close();
        }
    }

    static bool hasText(QWidget& widget) {
        QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(&widget);
        if (!told ||
            !told->text(QAccessible::Name).contains(QRegularExpression(QStringLiteral("\\w"))))
            return false;
        switch (told->role()) {
            case QAccessible::StaticText:
            case QAccessible::Button:
            case QAccessible::CheckBox:
            case QAccessible::RadioButton:
                return widget.isEnabled();
            default:
                return false;
        }
    }

    /// What lies in the window without anything in it, and has words.
    static void expectReadableWidgets(QWidget& window, const std::string& when) {
        const QImage picture = window.grab().toImage();
        int measured = 0;
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            const QRect place(widget->mapTo(&window, QPoint(0, 0)), widget->size());
            if (widget->window() != &window || !widget->isVisible() ||
                widget->visibleRegion().boundingRect() != widget->rect() ||
                !widget->findChildren<QWidget*>().isEmpty() || !hasText(*widget))
                continue;
            ++measured;
            expectReadable(
                picture.copy(place),
                when + ", " + utf8(window.windowTitle()) + ": " +
                    utf8(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name)));
        }
        EXPECT_GT(measured, 2) << utf8(window.windowTitle());
    }

    void expectAllReadable(const std::string& when) {
        expectReadableMenus(*app->dashboardWindow()->findChild<QMenuBar*>(), when);
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && !qobject_cast<QMenu*>(window))
                expectReadableWidgets(*window, when);
        }
    }
};

TEST_F(ReadableTexts, StayReadableInWhateverOrderThemesAreSwitched) {
    app->openSettings();
    app->openHelp();
    app->openAbout();
    settleEvents();
    expectAllReadable("at first");
    std::string order = "system";
    for (const Appearance next :
         {Appearance::system, Appearance::dark, Appearance::light, Appearance::system,
          Appearance::light, Appearance::dark, Appearance::system, Appearance::dark,
          Appearance::light, Appearance::dark}) {
        choose(next);
        order += " -> " + std::string(appearanceText(next));
        expectAllReadable(order);
    }
}

TEST_F(ReadableTexts, ThatAreOpenedAfterASwitchAreReadableToo) {
    for (const Appearance next : {Appearance::light, Appearance::dark, Appearance::light}) {
        choose(next);
        app->openSettings();
        app->openHelp();
        settleEvents();
        expectAllReadable("opened in " + std::string(appearanceText(next)));
        app->settingsWindow()->close();
        app->helpWindow()->close();
    }
}

}  // namespace
}  // namespace vantor::readable_texts_test

#include "app/tray/qt_menu_bar_extras.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QImage>

#include <memory>
#include <vector>

#include "ui/rendering.h"

namespace vantor::qt_menu_bar_extras_test {
namespace {

class QtMenuBarExtrasTest : public testing::Test {
  protected:
    StatusItemContent content() {
        return {QStringLiteral("Vantor"), QStringLiteral("waveform.path.ecg"),
                [this](QRect) { ++presses; },
                [this] {
                    ++asked;
                    return std::vector<StatusMenuEntry>{
                        {QStringLiteral("Processor  12%"), {}},
                        {},
                        {QStringLiteral("Quit"), [this] { ++quits; }}};
                }};
    }
    void press(QSystemTrayIcon::ActivationReason reason) { emit item->icon().activated(reason); }

    int presses = 0;
    int asked = 0;
    int quits = 0;
    std::unique_ptr<QtMenuBarExtra> item = std::make_unique<QtMenuBarExtra>(content());
};

TEST_F(QtMenuBarExtrasTest, TheBarIsAlwaysThere) {
    QtMenuBarExtras bar;
    EXPECT_TRUE(bar.isAvailable());
    EXPECT_NE(bar.makeItem(content()), nullptr);
}

TEST_F(QtMenuBarExtrasTest, APressIsToldOfAndTheSecondOfTwoQuickOnesToo) {
    press(QSystemTrayIcon::Trigger);
    EXPECT_EQ(presses, 1);
    press(QSystemTrayIcon::DoubleClick);
    EXPECT_EQ(presses, 2);
    press(QSystemTrayIcon::MiddleClick);
    press(QSystemTrayIcon::Unknown);
    EXPECT_EQ(presses, 2);
    EXPECT_FALSE(item->menu().isVisible());
}

TEST_F(QtMenuBarExtrasTest, TheOtherButtonOpensThePlainMenu) {
    press(QSystemTrayIcon::Context);
    EXPECT_EQ(presses, 0);
    EXPECT_TRUE(item->menu().isVisible());
    EXPECT_GE(asked, 1);
    ASSERT_EQ(item->menu().actions().size(), 3);
    EXPECT_FALSE(item->menu().actions()[0]->isEnabled());
    EXPECT_TRUE(item->menu().actions()[1]->isSeparator());
    item->menu().actions()[2]->trigger();
    EXPECT_EQ(quits, 0) << "in a turn of its own";
    QCoreApplication::processEvents();
    EXPECT_EQ(quits, 1);
    item->menu().close();
}

TEST_F(QtMenuBarExtrasTest, TheIconHasNoMenuOfItsOwnWhichEveryPressWouldOpen) {
    EXPECT_EQ(item->icon().contextMenu(), nullptr);
}

TEST_F(QtMenuBarExtrasTest, ItsSymbolIsAShapeForTheBarToTint) {
    const QIcon icon = item->icon().icon();
    EXPECT_TRUE(icon.isMask());
    for (const int side : {16, 18, 36}) {
        const QImage image = icon.pixmap(QSize(side, side)).toImage();
        ASSERT_EQ(image.width(), side);
        int drawn = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const QColor color = image.pixelColor(x, y);
                if (color.alpha() == 0) continue;
                ++drawn;
                EXPECT_EQ(color.rgb() & 0xFFFFFFu, 0u) << x << ' ' << y;
            }
        }
        EXPECT_GT(drawn, side);
        EXPECT_LT(drawn, side * side / 2);
    }
}

TEST_F(QtMenuBarExtrasTest, ItsTitleIsToldWhereThePointerRests) {
    EXPECT_EQ(utf8(item->icon().toolTip()), "Vantor");
}

}  // namespace
}  // namespace vantor::qt_menu_bar_extras_test

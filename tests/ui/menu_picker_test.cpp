#include "ui/components/menu_picker.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>

#include <array>
#include <limits>

#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::menu_picker_test {
namespace {

class MenuPickerTest : public testing::Test {
  protected:
    std::vector<std::size_t> chosen;
    MenuPickerView view{QStringLiteral("Refresh interval"),
                        {QStringLiteral("0.5 second"), QStringLiteral("1 second")},
                        [this](std::size_t choice) { chosen.push_back(choice); }};
};

TEST_F(MenuPickerTest, OpensByMouseAndByKeys) {
    view.setVisible(true);
    view.resize(view.sizeHint());
    click(view);
    EXPECT_TRUE(view.menu().isVisible());
    view.menu().close();
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Down, Qt::Key_Up}) {
        pressKey(view, key);
        EXPECT_TRUE(view.menu().isVisible()) << key;
        view.menu().close();
    }
}

TEST_F(MenuPickerTest, AKeyGoesOnFromWhatHolds) {
    view.setVisible(true);
    view.show(QStringLiteral("0.5 second"), 0);
    pressKey(view, Qt::Key_Down);
    pressKey(view.menu(), Qt::Key_Down);
    pressKey(view.menu(), Qt::Key_Return);
    EXPECT_EQ(chosen, (std::vector<std::size_t>{1}));
}

TEST_F(MenuPickerTest, TellsOnlyOfWhatTheUserChooses) {
    view.show(QStringLiteral("1 second"), 1);
    view.show(QStringLiteral("3 seconds"), std::nullopt);
    EXPECT_TRUE(chosen.empty());
    EXPECT_EQ(utf8(view.text()), "3 seconds");
    EXPECT_EQ(utf8(view.accessibleName()), "Refresh interval 3 seconds");
    for (const QAction* action : view.menu().actions())
        EXPECT_FALSE(action->isChecked());
}

TEST(PlaceAmong, TellsWhereAValueIs) {
    constexpr std::array numbers{0.5, 1.0};
    EXPECT_EQ(placeAmong(numbers, 1.0), 1u);
    EXPECT_EQ(placeAmong(numbers, 3.0), std::nullopt);
    EXPECT_EQ(placeAmong(numbers, std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

}  // namespace
}  // namespace vantor::menu_picker_test

#include "ui/settings/not_saved_view.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QScrollArea>

#include "ui/contrast.h"
#include "ui/cut_texts.h"
#include "ui/settings_fixture.h"

/// What the settings say of preferences that are not saved.
namespace vantor::not_saved_view_test {
namespace {

class NotSaved : public SettingsViewTest {
  protected:
    const std::shared_ptr<Published<std::string>> reason =
        std::make_shared<Published<std::string>>(std::string());

    NotSaved() { view = makeWithReason(); }

    std::unique_ptr<SettingsView> makeWithReason() {
        return std::make_unique<SettingsView>(
            SettingsView::Environment{world.settings, world.machine, world.metadata, {}, reason});
    }
    void tell(const char* sentence) const {
        reason->set(sentence);
        settleEvents();
    }
};

constexpr auto full = "There is not enough space on the disk.";

TEST_F(NotSaved, SaysNothingWhileAllIsWell) {
    open();
    EXPECT_FALSE(view->notSaved().isVisible());
    EXPECT_EQ(view->scrollArea().height(), view->height());
}

TEST_F(NotSaved, SaysWhyInALineBelowTheForm) {
    open();
    tell(full);
    EXPECT_TRUE(view->notSaved().isVisible());
    EXPECT_EQ(utf8(view->notSaved().text()), "Not saved: there is not enough space on the disk.");
    EXPECT_EQ(view->notSaved().geometry().bottom(), view->rect().bottom());
    EXPECT_EQ(view->scrollArea().geometry().bottom() + 1, view->notSaved().y());
}

TEST_F(NotSaved, VanishesWhenItIsSaved) {
    open();
    tell(full);
    tell("");
    EXPECT_FALSE(view->notSaved().isVisible());
    EXPECT_EQ(view->scrollArea().height(), view->height());
}

TEST_F(NotSaved, IsSaidByAWindowThatOpensLater) {
    tell(full);
    view = makeWithReason();
    open();
    EXPECT_TRUE(view->notSaved().isVisible());
}

TEST_F(NotSaved, IsAnAlertToScreenReaders) {
    open();
    tell(full);
    QAccessibleInterface* const line = QAccessible::queryAccessibleInterface(&view->notSaved());
    EXPECT_EQ(line->role(), QAccessible::AlertMessage);
    EXPECT_EQ(utf8(line->text(QAccessible::Name)),
              "Not saved: there is not enough space on the disk.");
    EXPECT_FALSE(line->state().invisible);
    tell("");
    EXPECT_TRUE(line->state().invisible);
}

class NotSavedLook : public NotSaved, public testing::WithParamInterface<Qt::LayoutDirection> {};

INSTANTIATE_TEST_SUITE_P(Of, NotSavedLook, testing::Values(Qt::LeftToRight, Qt::RightToLeft));

TEST_P(NotSavedLook, CanBeReadInLightAndInDark) {
    view->setLayoutDirection(GetParam());
    open();
    tell(full);
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        view->setPalette(paletteOf(scheme));
        settleEvents();
        const QImage image = view->notSaved().grab().toImage();
        EXPECT_GE(contrastIn(image), 4.5);
    }
}

TEST_F(NotSaved, IsWholeWhereItIsNarrowAndTheFontIsLarge) {
    const LargerFont larger(1.5);
    view = makeWithReason();
    openAt(view->minimumSizeHint());
    tell("The system gave the reason \"Some reason that nobody has ever seen\" (4711).");
    QFontMetrics metrics(Typography::font(Typography::body));
    EXPECT_GT(view->notSaved().height(), 2 * metrics.height()) << "it breaks into lines";
    EXPECT_EQ(view->notSaved().height(), view->notSaved().heightForWidth(view->width()));
}

}  // namespace
}  // namespace vantor::not_saved_view_test

#include <gtest/gtest.h>

#include <limits>

#include "ui/components/segmented_picker.h"
#include "ui/components/stepper.h"
#include "ui/components/toggle_row.h"
#include "ui/cut_texts.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

/// Stepper, switch, and the picker of segments without its label.
namespace vantor::form_controls_test {
namespace {

using Half = StepperView::Half;

constexpr auto minNumber = std::numeric_limits<std::int64_t>::min();
constexpr auto greatestNumber = std::numeric_limits<std::int64_t>::max();

Stepper history() {
    return {QStringLiteral("Chart history"),
            [](std::int64_t value) { return QStringLiteral("%1 samples").arg(value); }, 30, 300};
}

TEST(Stepper, StepsWithinItsBounds) {
    EXPECT_EQ(history().stepped(90, 1), 91);
    EXPECT_EQ(history().stepped(90, -10), 80);
    EXPECT_EQ(history().stepped(300, 1), 300);
    EXPECT_EQ(history().stepped(30, -1), 30);
}

TEST(Stepper, FromOutsideItGoesToTheNearestBoundAndNeverWraps) {
    EXPECT_EQ(history().stepped(1000, -1), 300);
    EXPECT_EQ(history().stepped(5, 1), 30);
    EXPECT_EQ(history().stepped(minNumber, -10), 30);
    EXPECT_EQ(history().stepped(greatestNumber, 10), 300);
}

class StepperViewTest : public testing::Test {
  protected:
    std::vector<std::int64_t> asked;
    StepperView view{history(), 90, [this](std::int64_t value) {
                         asked.push_back(value);
                         view.show(value);
                     }};

    void SetUp() override { view.resize(view.sizeHint()); }
    void clickHalf(Half half) {
        sendMouse(view, QEvent::MouseButtonPress, view.areaOf(half).center());
        sendMouse(view, QEvent::MouseButtonRelease, view.areaOf(half).center());
    }
};

TEST_F(StepperViewTest, ItsHalvesStepByMouse) {
    clickHalf(Half::more);
    clickHalf(Half::more);
    clickHalf(Half::less);
    EXPECT_EQ(asked, (std::vector<std::int64_t>{91, 92, 91}));
}

TEST_F(StepperViewTest, KeysStepByOneAndByTenAndToTheBounds) {
    for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Right, Qt::Key_Left, Qt::Key_PageUp,
                           Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home}) {
        pressKey(view, key);
    }
    EXPECT_EQ(asked, (std::vector<std::int64_t>{91, 90, 91, 90, 100, 90, 300, 30}));
    asked.clear();
    pressKey(view, Qt::Key_A);
    pressKey(view, Qt::Key_Down);
    EXPECT_TRUE(asked.empty()) << "it is at its bound";
}

TEST_F(StepperViewTest, MoreIsOnTheLeftWhereTheLanguageRunsTheOtherWay) {
    view.setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(view.areaOf(Half::more).left(), view.areaOf(Half::less).left());
    pressKey(view, Qt::Key_Left);
    EXPECT_EQ(asked, (std::vector<std::int64_t>{91}));
}

TEST_F(StepperViewTest, ShowsAValueOutsideItsBoundsAndChangesItOnlyWhenAsked) {
    view.show(1000);
    EXPECT_EQ(view.value(), 1000);
    EXPECT_TRUE(asked.empty());
    EXPECT_FALSE(view.canStep(Half::more));
    EXPECT_TRUE(view.canStep(Half::less));
    EXPECT_EQ(utf8(view.accessibleValueText()), "1000 samples");
    clickHalf(Half::less);
    EXPECT_EQ(asked, (std::vector<std::int64_t>{300}));
}

TEST_F(StepperViewTest, RepeatsWhileItIsHeldDown) {
    view.setVisible(true);
    sendMouse(view, QEvent::MouseButtonPress, view.areaOf(Half::more).center());
    EXPECT_EQ(asked.size(), 1u);
    QTimerEvent foreign(-5);
    QCoreApplication::sendEvent(&view, &foreign);
    EXPECT_EQ(asked.size(), 1u);
    for (int i = 0; i < 3; ++i) {
        QTimerEvent due(view.repeatTimer());
        QCoreApplication::sendEvent(&view, &due);
    }
    EXPECT_EQ(asked, (std::vector<std::int64_t>{91, 92, 93, 94}));
    sendMouse(view, QEvent::MouseButtonRelease, QPointF(-40, -40));
    EXPECT_LE(view.repeatTimer(), 0) << "let go, it stops";
}

TEST_F(StepperViewTest, HiddenWhileItIsHeldDownItStops) {
    view.setVisible(true);
    sendMouse(view, QEvent::MouseButtonPress, view.areaOf(Half::more).center());
    view.setVisible(false);
    EXPECT_LE(view.repeatTimer(), 0);
}

TEST_F(StepperViewTest, IsASpinBoxForAssistiveTechnology) {
    QAccessibleInterface* element = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->role(), QAccessible::SpinBox);
    EXPECT_EQ(utf8(element->text(QAccessible::Name)), "Chart history");
    EXPECT_EQ(utf8(element->text(QAccessible::Value)), "90 samples");
    QAccessibleValueInterface* value = element->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->currentValue().toDouble(), 90);
    EXPECT_EQ(value->minimumValue().toDouble(), 30);
    EXPECT_EQ(value->maximumValue().toDouble(), 300);
    EXPECT_EQ(value->minimumStepSize().toDouble(), 1);
    value->setCurrentValue(120);
    value->setCurrentValue(1e300);
    value->setCurrentValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(asked, (std::vector<std::int64_t>{120, 300}));
}

TEST_F(StepperViewTest, IsPaintedOnlyWhenItShowsAnotherValue) {
    view.setVisible(true);
    settleEvents();
    PaintCount paints;
    paints.watch(view);
    view.show(90);
    settleEvents();
    EXPECT_EQ(paints.take(), 0);
    view.show(91);
    settleEvents();
    EXPECT_EQ(paints.take(), 1);
}

class ToggleRowTest : public testing::Test {
  protected:
    std::vector<bool> heard;
    ToggleRowView view{QStringLiteral("Show menu bar dashboard"), ToggleRowView::Switch::trailing,
                       [this](bool isOn) { heard.push_back(isOn); }};

    void SetUp() override { view.resize(300, view.heightForWidth(300)); }
};

TEST_F(ToggleRowTest, IsTurnedByMouseAnywhereAndByKey) {
    sendMouse(view, QEvent::MouseButtonPress, {10, 10});
    sendMouse(view, QEvent::MouseButtonRelease, {10, 10});
    sendMouse(view, QEvent::MouseButtonPress, view.switchArea().center());
    sendMouse(view, QEvent::MouseButtonRelease, view.switchArea().center());
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        pressKey(view, key);
    EXPECT_EQ(heard, (std::vector<bool>{true, false, true, false, true}));
}

TEST_F(ToggleRowTest, ShowingItTellsNobody) {
    view.show(true);
    EXPECT_TRUE(view.isChecked());
    EXPECT_TRUE(heard.empty());
}

TEST_F(ToggleRowTest, ItsSwitchIsBlueWhenOnAndItsKnobIsWhereItBelongs) {
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        view.show(false);
        QImage image = rendered(view, view.size(), scheme);
        const QRectF area = view.switchArea();
        const QRectF left(area.left(), area.top(), area.width() / 2, area.height());
        const QRectF right = left.translated(area.width() / 2, 0);
        EXPECT_EQ(pixelsLike(image, area, VantorTheme::blue()), 0);
        EXPECT_GT(pixelsLike(image, left, Qt::white), 150);
        EXPECT_EQ(pixelsLike(image, right, Qt::white), 0);
        view.show(true);
        image = rendered(view, view.size(), scheme);
        EXPECT_GT(pixelsLike(image, left, VantorTheme::blue()), 150);
        EXPECT_GT(pixelsLike(image, right, Qt::white), 150);
    }
}

TEST_F(ToggleRowTest, ItsTextBreaksIntoLinesAndMakesRoom) {
    const int single = view.heightForWidth(400);
    EXPECT_GT(view.heightForWidth(140), single);
    EXPECT_LE(view.minimumSizeHint().width(), 200);
    EXPECT_FALSE(view.textArea().intersects(view.switchArea()));
}

TEST_F(ToggleRowTest, TheSwitchLeadsWhereItIsToldTo) {
    ToggleRowView leading(QStringLiteral("t"), ToggleRowView::Switch::leading, {});
    leading.resize(300, 30);
    EXPECT_EQ(leading.switchArea().left(), ToggleRowView::outset);
    EXPECT_EQ(view.switchArea().right(), 300 - ToggleRowView::outset);
    leading.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(leading.switchArea().right(), 300 - ToggleRowView::outset);
    EXPECT_FALSE(leading.textArea().intersects(leading.switchArea()));
    click(leading);
    EXPECT_TRUE(leading.isChecked()) << "and nobody to tell";
}

TEST_F(ToggleRowTest, IsACheckBoxForAssistiveTechnology) {
    QAccessibleInterface* element = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->role(), QAccessible::CheckBox);
    EXPECT_EQ(utf8(element->text(QAccessible::Name)), "Show menu bar dashboard");
    EXPECT_FALSE(element->state().checked);
    view.show(true);
    EXPECT_TRUE(element->state().checked);
}

TEST_F(ToggleRowTest, AssistiveTechnologyTurnsItLikeAUser) {
    QAccessibleInterface* element = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(element, nullptr);
    QAccessibleActionInterface* const actions = element->actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(QAccessibleActionInterface::toggleAction());
    actions->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(heard, (std::vector<bool>{true, false}));
}

/// Whether `widget` looks otherwise when it is reached by key, and not when it is clicked.
bool hasRing(QWidget& widget) {
    widget.setVisible(true);
    widget.activateWindow();
    settleEvents();
    widget.clearFocus();
    const QImage before = rendered(widget, widget.size());
    widget.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(rendered(widget, widget.size()), before);
    widget.clearFocus();
    widget.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(widget.hasFocus());
    return rendered(widget, widget.size()) != before;
}

TEST_F(ToggleRowTest, ShowsTheFocusThatCameByKey) {
    view.show(true);
    EXPECT_TRUE(hasRing(view)) << "also around a switch of the ring's own colour";
}

TEST_F(StepperViewTest, ShowsTheFocusThatCameByKey) {
    EXPECT_TRUE(hasRing(view));
}

TEST(SegmentedPicker, WithoutItsLabelItIsAsWideAsItsTrack) {
    SegmentedPicker picker(QStringLiteral("Theme"),
                           {QStringLiteral("System"), QStringLiteral("Dark")}, {});
    const int labelled = picker.sizeHint().width();
    picker.hideLabel();
    EXPECT_EQ(utf8(picker.accessibleName()), "Theme");
    const int track = picker.button(0).sizeHint().width() + picker.button(1).sizeHint().width() + 6;
    EXPECT_EQ(picker.sizeHint().width(), track);
    EXPECT_LT(track, labelled);
}

}  // namespace
}  // namespace vantor::form_controls_test

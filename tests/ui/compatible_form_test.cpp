#include "ui/settings/compatible_form.h"

#include <gtest/gtest.h>

#include "platform/simulated/simulated_machine.h"
#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::compatible_form_test {
namespace {

QRect placeIn(const QWidget& whole, const QWidget& part) {
    return {part.mapTo(&whole, QPoint()), part.size()};
}

class CompatibleFormTest : public testing::TestWithParam<FormStyle> {
  protected:
    CompatibleFormSection section{GetParam(), QStringLiteral("Data")};
    CompatibleLabeledValue* first = add("Network privacy", "No public IP lookup");
    CompatibleLabeledValue* second = add("GPU telemetry", "Metal + IORegistry");

    CompatibleLabeledValue* add(const char* label, const char* value) {
        auto made = std::make_unique<CompatibleLabeledValue>(GetParam(), QString::fromLatin1(label),
                                                             QString::fromLatin1(value));
        auto* row = made.release();
        section.add(row);
        return row;
    }
    void open(Qt::LayoutDirection direction = Qt::LeftToRight) {
        section.setLayoutDirection(direction);
        section.setVisible(true);
        section.resize(480, section.sizeHint().height());
        settleEvents();
    }
};

INSTANTIATE_TEST_SUITE_P(Of, CompatibleFormTest,
                         testing::Values(FormStyle::grouped, FormStyle::plain),
                         [](const auto& test) {
                             return test.param == FormStyle::grouped ? "Grouped" : "Plain";
                         });

TEST_P(CompatibleFormTest, ATitleStandsOverTheRows) {
    open();
    EXPECT_EQ(section.title().accessibleRole(), QAccessible::Heading);
    EXPECT_EQ(utf8(section.title().text()), "Data");
    EXPECT_LT(placeIn(section, section.title()).bottom(), placeIn(section, *first).top());
    EXPECT_LT(placeIn(section, *first).bottom(), placeIn(section, *second).top());
}

TEST_P(CompatibleFormTest, AValueIsInTheSecondaryColourAndNamedByItsLabel) {
    QAccessibleInterface* value = QAccessible::queryAccessibleInterface(&first->value());
    EXPECT_EQ(utf8(value->text(QAccessible::Name)), "Network privacy");
    EXPECT_EQ(utf8(value->text(QAccessible::Value)), "No public IP lookup");
    EXPECT_EQ(utf8(first->label().text()), "Network privacy");
    const QImage image = rendered(first->value(), first->value().sizeHint());
    EXPECT_EQ(
        pixelsLike(image, QRectF(0, 0, 300, 40), VantorTheme::primaryLabel(ColorScheme::dark)), 0);
}

TEST_P(CompatibleFormTest, LabelAndContentKeepADistanceOf16) {
    open();
    const QRect label = placeIn(section, first->label());
    const QRect value = placeIn(section, first->value());
    EXPECT_GE(value.left() - label.right() - 1, 16);
    EXPECT_EQ(label.center().y(), value.center().y());
    section.resize(section.minimumSizeHint());
    settleEvents();
    const int narrowest =
        placeIn(section, first->value()).left() - placeIn(section, first->label()).right() - 1;
    EXPECT_EQ(narrowest, 16);
}

TEST(CompatibleForm, FromVersion13OnTheContentStandsAtTheTrailingEdge) {
    CompatibleLabeledValue row(FormStyle::grouped, QStringLiteral("a"), QStringLiteral("b"));
    row.setVisible(true);
    row.resize(400, 30);
    settleEvents();
    EXPECT_EQ(row.label().x(), 0);
    EXPECT_EQ(row.value().geometry().right(), 399);
    row.setLayoutDirection(Qt::RightToLeft);
    settleEvents();
    EXPECT_EQ(row.value().x(), 0);
}

TEST(CompatibleForm, BeforeItFollowsALabelOfAFixedWidth) {
    CompatibleLabeledValue shorter(FormStyle::plain, QStringLiteral("a"), QStringLiteral("b"));
    CompatibleLabeledValue longer(FormStyle::plain, QStringLiteral("Network privacy"),
                                  QStringLiteral("No public IP lookup"));
    for (CompatibleLabeledValue* row : {&shorter, &longer}) {
        row->setVisible(true);
        row->resize(480, 30);
    }
    settleEvents();
    EXPECT_EQ(shorter.label().width(), 190);
    EXPECT_EQ(shorter.value().x(), 190 + 16);
    EXPECT_EQ(longer.value().x(), 190 + 16) << "values stand in line";
}

TEST(CompatibleForm, ALabelThatOutgrowsTheFixedWidthIsNotCut) {
    CompatibleLabeledValue row(FormStyle::plain, QStringLiteral("a"), QStringLiteral("b"));
    row.setVisible(true);
    row.label().show(QStringLiteral("A label that is much longer than any of this form"));
    row.resize(row.sizeHint());
    settleEvents();
    EXPECT_GT(row.label().width(), 190);
    EXPECT_GE(row.label().width(), row.label().sizeHint().width());
}

TEST(CompatibleForm, TheStyleFollowsTheSystemsVersion) {
    const auto machine = SimulatedMachine::laptop();
    EXPECT_EQ(formStyle(machine->processInfo()), FormStyle::grouped);
    machine->processInfo().version = {13, 0, 0};
    EXPECT_EQ(formStyle(machine->processInfo()), FormStyle::grouped);
    machine->processInfo().version = {12, 7, 9};
    EXPECT_EQ(formStyle(machine->processInfo()), FormStyle::plain);
}

TEST_P(CompatibleFormTest, OnlyGroupsStandOnAGround) {
    open();
    const QImage image = rendered(section, section.size());
    const QPointF beside(placeIn(section, first->label()).right() + 8,
                         placeIn(section, *first).center().y());
    EXPECT_EQ(colorAt(image, beside.x(), beside.y()).alpha() > 0, GetParam() == FormStyle::grouped);
}

}  // namespace
}  // namespace vantor::compatible_form_test

#include <gtest/gtest.h>

#include <QAccessible>

#include <cmath>

#include "ui/cards/cpu_card.h"
#include "ui/components/capsule_button.h"
#include "ui/components/ring_gauge.h"
#include "ui/dashboard_world.h"

/// What those hear who cannot see the screen.
namespace vantor::accessibility_test {
namespace {

RingGauge gauge(const QString& title) {
    return {0.5, title, QStringLiteral("CPU Load"), VantorTheme::cyan(), 12};
}

TEST(Accessibility, APaintedViewHasRoleNameValueAndDescription) {
    RingGaugeView view(gauge(QStringLiteral("50%")));
    view.setToolTip(QStringLiteral("of all processors"));
    QAccessibleInterface* element = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->role(), QAccessible::ProgressBar);
    EXPECT_EQ(utf8(element->text(QAccessible::Name)), "CPU Load");
    EXPECT_EQ(utf8(element->text(QAccessible::Value)), "50%");
    EXPECT_EQ(utf8(element->text(QAccessible::Description)), "50%, of all processors")
        << "where only names and descriptions are told, the value is there, too";
    QAccessibleValueInterface* const value = element->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_DOUBLE_EQ(value->currentValue().toDouble(), 0.5);
    EXPECT_DOUBLE_EQ(value->maximumValue().toDouble(), 1);
    EXPECT_EQ(element->childCount(), 0);
}

TEST(Accessibility, ButtonsAreNamedByTheirTitle) {
    CapsuleButtonView button({QStringLiteral("Refresh"), QStringLiteral("arrow.clockwise"), {}});
    QAccessibleInterface* element = QAccessible::queryAccessibleInterface(&button);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->role(), QAccessible::Button);
    EXPECT_EQ(utf8(element->text(QAccessible::Name)), "Refresh");
}

TEST(Accessibility, EveryViewOfTheDashboardHasAName) {
    DashboardWorld world;
    world.open();
    world.goLive();
    int views = 0;
    for (QWidget* child : world.view->findChildren<QWidget*>()) {
        if (const auto* painted = dynamic_cast<PaintedView*>(child)) {
            ++views;
            EXPECT_FALSE(painted->accessibleLabel().isEmpty());
        }
    }
    EXPECT_GE(views, 12);
}

TEST(Accessibility, AFigureThatIsNoShareHasNoNumericValue) {
    RingGaugeView unknown(
        {std::nan(""), QStringLiteral("—"), QStringLiteral("GPU Load"), VantorTheme::purple(), 12});
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&unknown)->valueInterface(), nullptr);
    const MetricRow row{QStringLiteral("Uptime"), QStringLiteral("3h 5m"), std::nullopt};
    MetricRowView text(row);
    QAccessibleInterface* const element = QAccessible::queryAccessibleInterface(&text);
    EXPECT_EQ(element->valueInterface(), nullptr);
    EXPECT_EQ(utf8(element->text(QAccessible::Description)), "3h 5m");
}

TEST(Accessibility, ACardReadsAsText) {
    DashboardWorld world;
    world.open();
    world.goLive();
    QAccessibleInterface* const card =
        QAccessible::queryAccessibleInterface(&world.view->card<CPUCardView>());
    ASSERT_NE(card, nullptr);
    EXPECT_EQ(card->role(), QAccessible::Grouping);
    EXPECT_EQ(utf8(card->text(QAccessible::Name)), "CPU");
    const std::string text = utf8(card->text(QAccessible::Description));
    EXPECT_EQ(text.find("CPU 2 physical \u2022 4 logical cores, CPU Load 40%, User 30.0%, "), 0u)
        << text;
}

TEST(Accessibility, AllSixCardsAndTheExplorerAreThere) {
    DashboardWorld world;
    world.open();
    world.goLive();
    std::vector<std::string> names;
    for (QWidget* child : world.view->findChildren<QWidget*>()) {
        QAccessibleInterface* const element = QAccessible::queryAccessibleInterface(child);
        if (dynamic_cast<DashboardCardView*>(child)) {
            names.push_back(utf8(element->text(QAccessible::Name)));
        }
    }
    EXPECT_EQ(names, (std::vector<std::string>{"CPU", "Memory", "Network", "Graphics", "Storage",
                                               "System", "Process Explorer"}));
}

}  // namespace
}  // namespace vantor::accessibility_test

#include <gtest/gtest.h>

#include <QAccessible>

#include "ui/components/capsule_button.h"
#include "ui/components/ring_gauge.h"
#include "ui/dashboard_world.h"

/// What those hear who cannot see the screen.
namespace vantor {
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
    EXPECT_EQ(utf8(element->text(QAccessible::Description)), "of all processors");
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

}  // namespace
}  // namespace vantor

#include "ui/components/capsule_button.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "ui/gestures.h"
#include "ui/rendering.h"

namespace vantor::capsule_button_test {
namespace {

class CapsuleButtonTest : public testing::Test {
  protected:
    int presses = 0;
    CapsuleButtonView view{
        {QStringLiteral("Refresh"), QStringLiteral("arrow.clockwise"), [this] { ++presses; }}};

    void SetUp() override { view.resize(view.sizeHint()); }
};

TEST_F(CapsuleButtonTest, RunsItsActionWhenPressed) {
    click(view);
    EXPECT_EQ(presses, 1);
    click(view);
    EXPECT_EQ(presses, 2);
}

TEST_F(CapsuleButtonTest, RunsItsActionByKey) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        presses = 0;
        pressKey(view, key);
        EXPECT_EQ(presses, 1) << key;
    }
    presses = 0;
    pressKey(view, Qt::Key_A);
    EXPECT_EQ(presses, 0);
}

TEST_F(CapsuleButtonTest, RunsNothingWhileDisabled) {
    view.setEnabled(false);
    click(view);
    pressKey(view, Qt::Key_Space);
    pressKey(view, Qt::Key_Return);
    EXPECT_EQ(presses, 0);
}

TEST_F(CapsuleButtonTest, ReleasedOutsideItRunsNothing) {
    sendMouse(view, QEvent::MouseButtonPress, QPointF(view.rect().center()));
    sendMouse(view, QEvent::MouseMove, QPointF(-50, -50));
    sendMouse(view, QEvent::MouseButtonRelease, QPointF(-50, -50));
    EXPECT_EQ(presses, 0);
}

TEST_F(CapsuleButtonTest, WithoutAnActionDoesNotFail) {
    CapsuleButtonView idle({QStringLiteral("Export"), QStringLiteral("square.and.arrow.up"), {}});
    idle.resize(idle.sizeHint());
    click(idle);
    pressKey(idle, Qt::Key_Enter);
    EXPECT_EQ(utf8(idle.text()), "Export");
}

TEST_F(CapsuleButtonTest, GroundIsACapsuleOfTheFaintLabelColour) {
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        const QImage image = rendered(view, view.sizeHint(), scheme);
        const QColor background = VantorTheme::faded(VantorTheme::primaryLabel(scheme), 0.07);
        EXPECT_TRUE(isNear(colorAt(image, 6, view.height() / 2.0), background));
        EXPECT_EQ(colorAt(image, 0.5, 0.5).alpha(), 0) << "a corner is rounded off";
    }
}

TEST_F(CapsuleButtonTest, TextAndSymbolKeepTheirDistanceFromTheEdges) {
    const QImage image = rendered(view, view.sizeHint());
    const QColor background =
        VantorTheme::faded(VantorTheme::primaryLabel(ColorScheme::dark), 0.07);
    const QRectF above(20, 1, view.width() - 40, 6);
    EXPECT_EQ(pixelsLike(image, above, background), paintedPixels(image, above));
    const QRectF leading(8, 10, 3, view.height() - 20);
    EXPECT_EQ(pixelsLike(image, leading, background), paintedPixels(image, leading));
}

TEST_F(CapsuleButtonTest, IsPaintedFainterWhileDisabled) {
    const QImage enabled = rendered(view, view.sizeHint());
    view.setEnabled(false);
    const QImage disabled = rendered(view, view.sizeHint());
    const double middle = view.height() / 2.0;
    EXPECT_LT(colorAt(disabled, 6, middle).alpha(), colorAt(enabled, 6, middle).alpha());
}

TEST_F(CapsuleButtonTest, PressedIsStrongerThanAtRest) {
    const QImage rest = rendered(view, view.sizeHint());
    view.setDown(true);
    const QImage pressed = rendered(view, view.sizeHint());
    const double middle = view.height() / 2.0;
    EXPECT_GT(colorAt(pressed, 6, middle).alpha(), colorAt(rest, 6, middle).alpha());
}

TEST_F(CapsuleButtonTest, ShowsARingToThoseWhoComeByKey) {
    const QColor ring = view.palette().color(QPalette::Highlight);
    const auto ringPixels = [&] {
        const QImage image = rendered(view, view.sizeHint());
        return pixelsLike(image, QRectF(view.rect()), ring);
    };
    view.setVisible(true);
    view.activateWindow();
    settleEvents();
    view.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(ringPixels(), 0);
    view.clearFocus();
    view.setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(view.hasFocus());
    EXPECT_GT(ringPixels(), 50);
}

TEST_F(CapsuleButtonTest, AnotherTitleNeverMakesItNarrower) {
    const QSize before = view.sizeHint();
    view.show(QStringLiteral("Go"), QStringLiteral("play.fill"));
    EXPECT_EQ(view.sizeHint(), before);
    EXPECT_EQ(utf8(view.text()), "Go");
    EXPECT_EQ(utf8(view.systemImage()), "play.fill");
    view.show(QStringLiteral("A much longer title"), QStringLiteral("play.fill"));
    EXPECT_GT(view.sizeHint().width(), before.width());
}

TEST_F(CapsuleButtonTest, KeepsRoomForTitlesToCome) {
    view.reserveWidthFor(QStringLiteral("A much longer title"));
    const QSize reserved = view.sizeHint();
    view.show(QStringLiteral("A much longer title"), QStringLiteral("power"));
    EXPECT_EQ(view.sizeHint(), reserved);
}

}  // namespace
}  // namespace vantor::capsule_button_test

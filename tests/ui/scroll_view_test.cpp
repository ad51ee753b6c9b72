#include "ui/dashboard/scroll_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QWheelEvent>

#include "ui/components/make_child.h"
#include "ui/rendering.h"

namespace vantor::scroll_view_test {
namespace {

class GlidingPage : public testing::Test {
  protected:
    VantorScrollView view{Qt::Vertical};

    void SetUp() override {
        auto page = std::make_unique<QWidget>();
        page->setMinimumHeight(2000);
        view.setWidget(page.release());  // the view owns it
        view.resize(300, 400);
        view.show();
        settleEvents();
    }
    QScrollBar& bar() { return *view.verticalScrollBar(); }

    void turnWheel(int angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                   QPoint pixels = {}) {
        QWheelEvent wheel({50, 50}, view.mapToGlobal(QPointF(50, 50)), pixels, {0, angle},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &wheel);
    }
    void wind(int milliseconds) { view.glide().setCurrentTime(milliseconds); }
    void finish() { wind(view.glide().duration()); }
};

TEST_F(GlidingPage, ANotchOfTheWheelMovesItByLinesButNotAtOnce) {
    const int notch = QApplication::wheelScrollLines() * 24;
    turnWheel(-120);
    EXPECT_EQ(view.destination(), notch);
    EXPECT_LT(bar().value(), notch);
    wind(60);
    EXPECT_GT(bar().value(), 0);
    EXPECT_LT(bar().value(), notch);
    finish();
    EXPECT_EQ(bar().value(), notch);
    EXPECT_EQ(view.destination(), notch);
}

TEST_F(GlidingPage, NotchesDuringTheGlideAddUp) {
    const int notch = QApplication::wheelScrollLines() * 24;
    turnWheel(-120);
    wind(50);
    turnWheel(-120);
    turnWheel(-120);
    EXPECT_EQ(view.destination(), 3 * notch);
    turnWheel(120);
    EXPECT_EQ(view.destination(), 2 * notch);
    finish();
    EXPECT_EQ(bar().value(), 2 * notch);
}

TEST_F(GlidingPage, ItEndsAtTheEdges) {
    turnWheel(120);
    finish();
    EXPECT_EQ(bar().value(), 0);
    for (int i = 0; i < 100; ++i)
        turnWheel(-120);
    finish();
    EXPECT_EQ(bar().value(), bar().maximum());
}

TEST_F(GlidingPage, WhoMovesThePageByHandEndsTheGlide) {
    turnWheel(-1200);
    wind(30);
    bar().setValue(7);
    EXPECT_EQ(view.destination(), 7);
    finish();
    EXPECT_EQ(bar().value(), 7);
}

TEST_F(GlidingPage, FingersOnATouchpadMoveItDirectly) {
    turnWheel(-40, Qt::NoModifier, {0, -13});
    EXPECT_GT(bar().value(), 0);
    EXPECT_EQ(view.destination(), bar().value());
}

}  // namespace
}  // namespace vantor::scroll_view_test

#include <gtest/gtest.h>

#include "e2e/desktop.h"
#include "e2e/running_program.h"

namespace vantor::small_screen_test {
namespace {

TEST(ProgramOnASmallScreen, FitsTheScreen) {
    Desktop desktop({1024, 640});
    ASSERT_TRUE(desktop.isUp());
    RunningProgram program(desktop);
    ASSERT_TRUE(program.waitForLiveData());
    const QRect area = program.windowArea();
    EXPECT_TRUE(QRect(0, 0, 1024, 640).contains(area))
        << area.x() << "," << area.y() << " " << area.width() << "x" << area.height();
}

}  // namespace
}  // namespace vantor::small_screen_test

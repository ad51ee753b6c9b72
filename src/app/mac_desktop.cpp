#include "app/desktop.h"
#include "app/qt_menu_bar_extras.h"

namespace vantor {

DesktopWays nativeDesktopWays() {
    return {.hasOneMenuBar = true, .reopensByActivation = true};
}

std::shared_ptr<StatusBar> makeNativeStatusBar() {
    return std::make_shared<QtMenuBarExtras>();
}

}  // namespace vantor

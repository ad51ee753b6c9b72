#include "app/desktop.h"
#include "app/tray/qt_menu_bar_extras.h"

namespace vantor {

DesktopTraits nativeDesktopTraits() {
    return {.hasOneMenuBar = true, .reopensByActivation = true};
}

std::shared_ptr<StatusBar> makeNativeStatusBar() {
    return std::make_shared<QtMenuBarExtras>();
}

}  // namespace vantor

#include "app/desktop.h"
#include "app/tray/qt_status_bar.h"

namespace vantor {

DesktopTraits nativeDesktopTraits() {
    return {};
}

std::shared_ptr<StatusBar> makeNativeStatusBar() {
    return std::make_shared<QtStatusBar>();
}

}  // namespace vantor

#include "app/desktop.h"
#include "app/qt_status_bar.h"

namespace vantor {

DesktopWays nativeDesktopWays() {
    return {};
}

std::shared_ptr<StatusBar> makeNativeStatusBar() {
    return std::make_shared<QtStatusBar>();
}

}  // namespace vantor

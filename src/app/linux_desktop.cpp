#include <unistd.h>

#include "app/desktop.h"
#include "app/tray/qt_status_bar.h"

namespace vantor {

DesktopTraits nativeDesktopTraits() {
    // What a sandbox has for this folder is no desktop's.
    constexpr auto signOfSandbox = "/.flatpak-info";
    return {.opensByAutostartEntries = ::access(signOfSandbox, F_OK) != 0};
}

std::shared_ptr<StatusBar> makeNativeStatusBar() {
    return std::make_shared<QtStatusBar>();
}

}  // namespace vantor

#include "app/appearance/native_desktop_appearance.h"

namespace vantor {

std::shared_ptr<DesktopAppearance> makeNativeDesktopAppearance() {
    return nullptr;
}

}  // namespace vantor

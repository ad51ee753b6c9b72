#pragma once

#include <memory>

#include "app/appearance/desktop_appearance.h"

namespace vantor {

/// That of the desktop that the program is built for; each has a file of its own. Null where the
/// toolkit's palette follows by itself. Needs the toolkit's application object; main thread.
std::shared_ptr<DesktopAppearance> makeNativeDesktopAppearance();

}  // namespace vantor

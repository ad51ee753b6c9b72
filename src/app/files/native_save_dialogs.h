#pragma once

#include <memory>

#include "platform/save_dialog.h"

namespace vantor {

/// Those of the desktop that the program is built for; each has a file of its own. Needs the
/// toolkit's application object; main thread.
std::shared_ptr<SaveDialogs> makeNativeSaveDialogs();

}  // namespace vantor

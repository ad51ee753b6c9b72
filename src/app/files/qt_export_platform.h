#pragma once

#include "platform/export_platform.h"

namespace vantor {

/// The desktop's save dialogs, the toolkit's alerts, and the files and the time zone of the
/// operating system. Needs the toolkit's application object; main thread.
ExportPlatform makeQtExportPlatform();

}  // namespace vantor

#pragma once

#include "platform/export_platform.h"

namespace vantor {

/// The toolkit's dialogs, and the files and the time zone of the operating system. Needs the
/// toolkit's application object; main thread.
ExportPlatform makeQtExportPlatform();

}  // namespace vantor

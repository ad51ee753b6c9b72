#include "app/qt_export_platform.h"

#include <memory>

#include "app/qt_alerts.h"
#include "app/qt_save_dialogs.h"
#include "platform/native_machine.h"

namespace vantor {

ExportPlatform makeQtExportPlatform() {
    return {std::make_shared<QtSaveDialogs>(), std::make_shared<QtAlerts>(), makeNativeFileWriter(),
            makeNativeLocalCalendar()};
}

}  // namespace vantor

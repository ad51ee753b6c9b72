#include "app/files/qt_export_platform.h"

#include <memory>

#include "app/files/native_save_dialogs.h"
#include "app/qt_alerts.h"
#include "platform/native_machine.h"

namespace vantor {

ExportPlatform makeQtExportPlatform() {
    return {makeNativeSaveDialogs(), std::make_shared<QtAlerts>(), makeNativeFileWriter(),
            makeNativeLocalCalendar()};
}

}  // namespace vantor

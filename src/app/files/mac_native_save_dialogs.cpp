#include "app/files/native_save_dialogs.h"
#include "app/files/qt_save_dialogs.h"

namespace vantor {

// The system's own panel, which looks at disks from a process of its own.
std::shared_ptr<SaveDialogs> makeNativeSaveDialogs() {
    return std::make_shared<QtSaveDialogs>();
}

}  // namespace vantor

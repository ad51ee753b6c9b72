#pragma once

#include <memory>

#include "platform/alert.h"
#include "platform/atomic_file_writer.h"
#include "platform/local_calendar.h"
#include "platform/save_dialog.h"

namespace vantor {

/// What is asked of a platform to save a file that the user chooses. All of them or none: a
/// program without a screen has no dialogs and exports nothing.
struct ExportPlatform {
    std::shared_ptr<SaveDialogs> saveDialogs;
    std::shared_ptr<Alerts> alerts;
    std::shared_ptr<AtomicFileWriter> files;
    std::shared_ptr<LocalCalendar> calendar;

    bool isWhole() const { return saveDialogs && alerts && files && calendar; }
};

}  // namespace vantor

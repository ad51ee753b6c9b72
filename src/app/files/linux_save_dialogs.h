#pragma once

#include <filesystem>
#include <memory>

#include "app/files/patient_questions.h"
#include "app/files/portal_save_dialog.h"
#include "platform/save_dialog.h"

namespace vantor {

/// The save dialogs of the desktop's portal where it has one that answers, else the program's own.
/// They belong to the front window: without it, a dialog is over. They open in the folder that was
/// saved to last in this run. A name without an ending gets the one of its kind.
///
/// The toolkit's own dialog is not used: it asks the disk on the main thread for every letter that
/// is typed, and reads the files that it lists.
class LinuxSaveDialogs : public SaveDialogs {
  public:
    struct Surroundings {
        std::shared_ptr<PatientQuestions> disk;
        std::shared_ptr<PatientQuestions> bus;
        BusLine::Connect connect;
        std::chrono::milliseconds patience = PortalSaveDialog::usualPatience;
    };

    explicit LinuxSaveDialogs(Surroundings surroundings);

    std::unique_ptr<SaveDialog> makeSaveDialog(const SaveRequest& request) override;

  private:
    class Dialog;

    Surroundings surroundings_;
    std::shared_ptr<std::filesystem::path> lastFolder_ = std::make_shared<std::filesystem::path>();
};

}  // namespace vantor

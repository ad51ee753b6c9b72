#pragma once

#include <QString>

#include <filesystem>
#include <memory>

#include "platform/save_dialog.h"

namespace vantor {

/// The toolkit's name of a file, as the bytes that the system knows it by.
std::filesystem::path pathOf(const QString& name);

/// The toolkit's save dialogs: the desktop's own where it has one. They open in the folder that was
/// saved to last in this run, at first in the user's documents, and belong to the front window:
/// without it, a dialog is over. A name without an ending gets the one of its kind.
class QtSaveDialogs : public SaveDialogs {
  public:
    std::unique_ptr<SaveDialog> makeSaveDialog(const SaveRequest& request) override;

  private:
    std::shared_ptr<QString> lastFolder_ = std::make_shared<QString>();
};

}  // namespace vantor

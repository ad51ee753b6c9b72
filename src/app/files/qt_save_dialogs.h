#pragma once

#include <QString>

#include <memory>

#include "platform/save_dialog.h"

namespace vantor {

/// The toolkit's save dialogs, for desktops whose own it shows. They open in the folder that was
/// saved to last in this run, at first in the user's documents, and belong to the front window:
/// without it, a dialog is over. A name without an ending gets the one of its kind. Where the
/// desktop has none, the toolkit's own asks the disk on the main thread.
class QtSaveDialogs : public SaveDialogs {
  public:
    std::unique_ptr<SaveDialog> makeSaveDialog(const SaveRequest& request) override;

  private:
    std::shared_ptr<QString> lastFolder_ = std::make_shared<QString>();
};

}  // namespace vantor

#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "platform/unique_function.h"

namespace vantor {

/// What a save dialog shows. Texts are UTF-8.
struct SaveRequest {
    std::string title;
    std::string proposedName;  ///< of the file, without a folder; the user may change it
    std::string contentType;   ///< the one kind of file that can be chosen, as a MIME type
    bool mayCreateFolders = false;

    bool operator==(const SaveRequest&) const = default;
};

/// One question where to save, shown beside everything else: the program goes on meanwhile. Main
/// thread.
class SaveDialog {
  public:
    /// Called on the main thread, once at most, and never from within begin: with the file that the
    /// user confirmed (replacing one that is there included), or with none when the dialog was
    /// closed in any other way.
    using Completion = UniqueFunction<void(std::optional<std::filesystem::path> destination)>;

    /// Takes the dialog from the screen; the completion is not called any more. Never within it.
    virtual ~SaveDialog() = default;

    /// Shows the dialog. Once.
    virtual void begin(Completion completion) = 0;
};

/// Makes save dialogs. Main thread.
class SaveDialogs {
  public:
    virtual ~SaveDialogs() = default;
    virtual std::unique_ptr<SaveDialog> makeSaveDialog(const SaveRequest& request) = 0;
};

}  // namespace vantor

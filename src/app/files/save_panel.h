#pragma once

#include <QDialog>
#include <QString>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/files/folder_looks.h"
#include "app/files/folder_view.h"
#include "app/files/patient_questions.h"
#include "app/files/save_notice.h"

class QLineEdit;
class QListWidget;
class QPushButton;
class QToolButton;

namespace vantor {

/// The program's own save dialog: a name, a folder, and a list to browse. What it shows and checks
/// it asks of the disk without waiting, so that a disk that hangs freezes neither the program nor
/// the dialog. Accepted, it has a destination: a new file, or one
/// that the user wants to replace.
class SavePanel : public QDialog {
  public:
    struct Request {
        QString title;
        QString proposedName;
        QString ending;  ///< of the files that are shown and saved; empty: any
        bool mayCreateFolders = true;
        /// Where to begin; empty, or where it cannot be read: the user's documents, else home.
        std::filesystem::path folder;
    };

    SavePanel(Request request, std::shared_ptr<PatientQuestions> disk, QWidget* parent);

    const std::filesystem::path& destination() const { return destination_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void build();
    QWidget* makeFolderLine();
    void connectParts();
    void makeRoom();

    void begin();
    void showPlaces(const std::vector<SavePlace>& places);
    void tryNextStart();
    void goTo(const std::filesystem::path& folder);
    void lookInto(const std::filesystem::path& folder);
    void goUp();
    void showFolder(const std::filesystem::path& folder,
                    const std::optional<FolderContents>& contents);
    void follow(const std::filesystem::path& folder, const std::vector<FolderEntry>& entries);
    void choose(const FolderEntry& entry);
    void enter(const FolderEntry& entry);
    void edited();
    void askForNewFolder();
    void makeNewFolder(const QString& name);

    std::filesystem::path currentFolder() const;
    std::filesystem::path typedFile() const;
    void save();
    void setChecking(bool isChecking);
    void judge(const std::filesystem::path& file, const std::optional<DestinationLook>& look);
    void askToReplace(const std::filesystem::path& file);
    void warn(const QString& text);
    void finish(const std::filesystem::path& file);

    Request request_;
    std::shared_ptr<PatientQuestions> disk_;
    // Owned by this widget, as its children.
    QLineEdit* name_ = nullptr;
    QLineEdit* folder_ = nullptr;
    QToolButton* up_ = nullptr;
    QToolButton* newFolder_ = nullptr;
    QListWidget* places_ = nullptr;
    FolderView* list_ = nullptr;
    SaveNotice* notice_ = nullptr;
    QPushButton* save_ = nullptr;

    std::vector<std::filesystem::path> starts_;    // where to begin, the best one last
    std::filesystem::path shown_;                  // the folder that the list shows or waits for
    std::optional<std::filesystem::path> chosen_;  // in the list: its name may not be valid text
    std::filesystem::path destination_;
    PatientQuestions::Question placesAsked_;
    PatientQuestions::Question folderAsked_;
    PatientQuestions::Question linksAsked_;
    PatientQuestions::Question fileAsked_;
};

}  // namespace vantor

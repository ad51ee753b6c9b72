#include "app/files/qt_save_dialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

#include <filesystem>
#include <optional>
#include <utility>

#include "app/files/file_kind.h"
#include "app/files/save_location.h"
#include "app/window/front_window.h"
#include "ui/components/make_child.h"
#include "ui/core_words.h"

namespace vantor {

namespace {

QString folderToOpen(const QString& lastFolder) {
    return lastFolder.isEmpty()
               ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
               : lastFolder;
}

QFileDialog* makeDialog(const SaveRequest& request, const QString& folder) {
    const FileKind kind = kindOfFile(request.contentType);
    auto* const dialog = makeChild<QFileDialog>(frontWindow());
    dialog->setWindowTitle(wordedForPeople(request.title));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setSupportedSchemes({QStringLiteral("file")});
    dialog->setNameFilter(
        QStringLiteral("%1 (*%2)")
            .arg(kind.name, kind.ending.isEmpty() ? QString() : u'.' + kind.ending));
    dialog->setDefaultSuffix(kind.ending);
    // To the toolkit, an existing folder that no folder can be made in is one that is only read.
    dialog->setOption(QFileDialog::ReadOnly, !request.mayCreateFolders);
    dialog->setDirectory(folder);
    dialog->selectFile(QString::fromStdString(request.proposedName));
    dialog->setModal(false);
    dialog->setAttribute(Qt::WA_QuitOnClose, false);
    return dialog;
}

class QtSaveDialog : public SaveDialog {
  public:
    QtSaveDialog(QFileDialog* dialog, std::shared_ptr<QString> lastFolder)
        : dialog_(dialog), lastFolder_(std::move(lastFolder)) {}
    QtSaveDialog(const QtSaveDialog&) = delete;
    QtSaveDialog& operator=(const QtSaveDialog&) = delete;
    ~QtSaveDialog() override {
        isOver_ = true;
        const std::unique_ptr<QFileDialog> gone(dialog_.data());
    }

    void begin(Completion completion) override {
        completion_ = std::move(completion);
        if (!dialog_) return end(std::nullopt);  // its window has closed meanwhile
        QObject::connect(dialog_, &QDialog::finished, &receiver_, [this](int result) {
            end(result == QDialog::Accepted ? chosen() : std::nullopt);
        });
        QObject::connect(dialog_, &QObject::destroyed, &receiver_, [this] { end(std::nullopt); });
        dialog_->show();
    }

  private:
    std::optional<std::filesystem::path> chosen() {
        const QString name = dialog_->selectedFiles().value(0);
        if (name.isEmpty()) return std::nullopt;
        *lastFolder_ = QFileInfo(name).absolutePath();
        return pathOf(name);
    }

    void end(std::optional<std::filesystem::path> destination) {
        if (std::exchange(isOver_, true)) return;
        destination_ = std::move(destination);
        // Never from within begin, nor from within the dialog's own code.
        QMetaObject::invokeMethod(
            &receiver_, [this] { completion_(std::move(destination_)); }, Qt::QueuedConnection);
    }

    QPointer<QFileDialog> dialog_;  // its window's child; gone with it
    std::shared_ptr<QString> lastFolder_;
    Completion completion_;
    std::optional<std::filesystem::path> destination_;
    bool isOver_ = false;
    QObject receiver_;
};

}  // namespace

std::unique_ptr<SaveDialog> QtSaveDialogs::makeSaveDialog(const SaveRequest& request) {
    return std::make_unique<QtSaveDialog>(makeDialog(request, folderToOpen(*lastFolder_)),
                                          lastFolder_);
}

}  // namespace vantor

#include "app/qt_save_dialogs.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QSplitter>
#include <QStandardPaths>
#include <QTreeView>

#include <optional>
#include <utility>

#include "app/front_window.h"
#include "ui/components/make_child.h"

namespace vantor {

namespace {

struct FileKind {
    QString filter;
    QString suffix;
};

FileKind kindOf(const std::string& contentType) {
    if (contentType == "application/json")
        return {QStringLiteral("JSON document (*.json)"), QStringLiteral("json")};
    return {QStringLiteral("All files (*)"), QString()};
}

QString folderToOpen(const QString& lastFolder) {
    for (const QString& folder :
         {lastFolder, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir()) return folder;
    }
    return QDir::homePath();
}

/// The toolkit's own dialog is a little small for paths, and its columns for their texts.
void makeRoom(QFileDialog& dialog) {
    const auto* const table = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    auto* const splitter = dialog.findChild<QSplitter*>();
    if (!table || !splitter) return;  // it is the desktop's own
    const QFontMetrics text = dialog.fontMetrics();
    const int side = text.averageCharWidth() * 22;
    const QSize size(text.averageCharWidth() * 104, text.height() * 28);
    dialog.resize(size.boundedTo(dialog.screen()->availableSize() - QSize(16, 48)));
    splitter->setSizes({side, dialog.width() - side});
    table->header()->setStretchLastSection(false);
    table->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int column = 1; column < table->header()->count(); ++column)
        table->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
}

QFileDialog* makeDialog(const SaveRequest& request, const QString& folder) {
    const FileKind kind = kindOf(request.contentType);
    auto* const dialog = makeChild<QFileDialog>(frontWindow());
    dialog->setWindowTitle(QString::fromStdString(request.title));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setSupportedSchemes({QStringLiteral("file")});
    dialog->setNameFilter(kind.filter);
    dialog->setDefaultSuffix(kind.suffix);
    // To the toolkit, an existing folder that no folder can be made in is one that is only read.
    dialog->setOption(QFileDialog::ReadOnly, !request.mayCreateFolders);
    dialog->setDirectory(folder);
    dialog->selectFile(QString::fromStdString(request.proposedName));
    dialog->setLabelText(QFileDialog::LookIn, QStringLiteral("Save in:"));
    dialog->setModal(false);
    dialog->setAttribute(Qt::WA_QuitOnClose, false);
    makeRoom(*dialog);
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
        QString name = dialog_->selectedFiles().value(0);
        // A desktop's own dialog has asked about replacing the file of the name as it was typed;
        // the completed one could be another file's, and nobody was asked about that. The toolkit's
        // dialog, which has a field of its own, asks about the completed name.
        const bool isOfTheDesktop = !dialog_->findChild<QLineEdit*>();
        if (isOfTheDesktop && QFileInfo::exists(name)) {
            dialog_->setDefaultSuffix(QString());
            name = dialog_->selectedFiles().value(0);
        }
        if (name.isEmpty()) return std::nullopt;
        *lastFolder_ = QFileInfo(name).absolutePath();
        return pathOf(name);
    }

    void end(std::optional<std::filesystem::path> destination) {
        if (std::exchange(isOver_, true)) return;
        destination_ = std::move(destination);
        // Never from within begin, nor from within the dialog's own doing.
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

std::filesystem::path pathOf(const QString& name) {
    return QFile::encodeName(name).toStdString();
}

std::unique_ptr<SaveDialog> QtSaveDialogs::makeSaveDialog(const SaveRequest& request) {
    return std::make_unique<QtSaveDialog>(makeDialog(request, folderToOpen(*lastFolder_)),
                                          lastFolder_);
}

}  // namespace vantor

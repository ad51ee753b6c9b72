#include "app/files/linux_save_dialogs.h"

#include <QGuiApplication>
#include <QPointer>
#include <QWidget>

#include <optional>
#include <utility>

#include "app/files/file_kind.h"
#include "app/files/save_panel.h"
#include "app/window/front_window.h"
#include "ui/core_words.h"

namespace vantor {

namespace {

/// The handle by which other programs know the window; only X11 has one.
QString handleOf(const QWidget* window) {
    if (!window || QGuiApplication::platformName() != u"xcb") return {};
    return QStringLiteral("x11:%1").arg(window->internalWinId(), 0, 16);
}

}  // namespace

/// One dialog: the portal's, or the panel where the portal does not answer.
class LinuxSaveDialogs::Dialog : public SaveDialog {
  public:
    Dialog(Surroundings surroundings, const SaveRequest& request,
           std::shared_ptr<std::filesystem::path> lastFolder)
        : surroundings_(std::move(surroundings)),
          title_(wordedForPeople(request.title)),
          proposedName_(QString::fromStdString(request.proposedName)),
          kind_(kindOfFile(request.contentType)),
          mayCreateFolders_(request.mayCreateFolders),
          lastFolder_(std::move(lastFolder)),
          window_(frontWindow()),
          isAlone_(!window_) {}
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    ~Dialog() override {
        isOver_ = true;
        const std::unique_ptr<SavePanel> gone(panel_.data());
    }

    void begin(Completion completion) override {
        completion_ = std::move(completion);
        if (!isAlone_ && !window_) return end(std::nullopt);  // it has closed meanwhile
        if (window_)
            QObject::connect(window_, &QObject::destroyed, &receiver_, [this] { end({}); });
        portal_.emplace(PortalSaveDialog::Request{title_, proposedName_, kind_.name, kind_.ending,
                                                  *lastFolder_, handleOf(window_)},
                        surroundings_.bus, surroundings_.connect, surroundings_.patience);
        portal_->begin([this](const PortalSaveDialog::Outcome& outcome) { portalEnded(outcome); });
    }

  private:
    using Kind = PortalSaveDialog::Outcome::Kind;

    void portalEnded(const PortalSaveDialog::Outcome& outcome) {
        if (outcome.kind == Kind::cancelled) return end(std::nullopt);
        if (outcome.kind == Kind::chosen) return complete(outcome.file);
        QMetaObject::invokeMethod(
            &receiver_, [this] { openPanel(); }, Qt::QueuedConnection);
    }

    void complete(const std::filesystem::path& file) {
        completing_ = surroundings_.disk->ask<std::filesystem::path>(
            [file, ending = kind_.ending.toStdString()] { return completedName(file, ending); },
            [this, file](std::optional<std::filesystem::path> name) {
                end(std::move(name).value_or(file));
            });
    }

    void openPanel() {
        if (isOver_) return;
        portal_.reset();
        panel_ = std::make_unique<SavePanel>(SavePanel::Request{title_, proposedName_, kind_.ending,
                                                                mayCreateFolders_, *lastFolder_},
                                             surroundings_.disk, window_.data())
                     .release();  // owned by the window, or deleted by this object
        QObject::connect(panel_, &QDialog::finished, &receiver_, [this](int result) {
            end(result == QDialog::Accepted ? std::optional(panel_->destination()) : std::nullopt);
        });
        panel_->show();
    }

    void end(std::optional<std::filesystem::path> destination) {
        if (std::exchange(isOver_, true)) return;
        if (destination) *lastFolder_ = destination->parent_path();
        destination_ = std::move(destination);
        // Never from within begin, nor from within the dialog's own code.
        QMetaObject::invokeMethod(
            &receiver_,
            [this] {
                portal_.reset();
                completion_(std::move(destination_));
            },
            Qt::QueuedConnection);
    }

    Surroundings surroundings_;
    QString title_;
    QString proposedName_;
    FileKind kind_;
    bool mayCreateFolders_;
    std::shared_ptr<std::filesystem::path> lastFolder_;
    QPointer<QWidget> window_;
    bool isAlone_;
    QPointer<SavePanel> panel_;
    std::optional<PortalSaveDialog> portal_;
    PatientQuestions::Question completing_;
    Completion completion_;
    std::optional<std::filesystem::path> destination_;
    bool isOver_ = false;
    QObject receiver_;
};

LinuxSaveDialogs::LinuxSaveDialogs(Surroundings surroundings)
    : surroundings_(std::move(surroundings)) {}

std::unique_ptr<SaveDialog> LinuxSaveDialogs::makeSaveDialog(const SaveRequest& request) {
    return std::make_unique<Dialog>(surroundings_, request, lastFolder_);
}

}  // namespace vantor

#include "app/files/save_panel.h"

#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "app/files/save_location.h"
#include "app/files/save_panel_texts.h"
#include "platform/posix/file_error.h"
#include "ui/components/make_child.h"
#include "ui/components/tool_tip_text.h"
#include "ui/core_words.h"
#include "ui/translate.h"

namespace vantor {

namespace {

using SavePath = std::filesystem::path;

}  // namespace

SavePanel::SavePanel(Request request, std::shared_ptr<PatientQuestions> disk, QWidget* parent)
    : QDialog(parent), request_(std::move(request)), disk_(std::move(disk)) {
    setModal(false);
    setAttribute(Qt::WA_QuitOnClose, false);
    build();
    connectParts();
    begin();
}

/// Return in a field or list is handled there, not by the dialog.
void SavePanel::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QWidget* const at = focusWidget();
    const bool isTaken =
        at == folder_ || at == places_ || (at == list_ && list_->currentIndex().isValid());
    if (isReturn && isTaken) return;
    if (event->key() == Qt::Key_Backspace && at == list_) return goUp();
    QDialog::keyPressEvent(event);
}

void SavePanel::begin() {
    notice_->say(translate("SavePanel", "Looking for your folders…"));
    placesAsked_ = disk_->ask<std::vector<SavePlace>>(
        findSavePlaces, [this](const std::optional<std::vector<SavePlace>>& found) {
            // Without an answer home is as good a guess as any; it is asked about in its turn.
            const std::vector<SavePlace> home{{"Home", folderOf(QStringLiteral("~"), {})}};
            const std::vector<SavePlace> places = found.value_or(home);
            showPlaces(places);
            if (!folder_->text().isEmpty()) return;  // the user was faster
            starts_ = {places.front().folder};
            for (const SavePlace& place : places) {
                if (place.name == "Documents") starts_.push_back(place.folder);
            }
            if (!request_.folder.empty()) starts_.push_back(request_.folder);
            tryNextStart();
        });
}

void SavePanel::showPlaces(const std::vector<SavePlace>& places) {
    const auto add = [this](const QString& name, const SavePath& folder) {
        const auto icon = style()->standardIcon(QStyle::SP_DirIcon);
        auto* const item = std::make_unique<QListWidgetItem>(icon, name, places_).release();
        item->setData(Qt::UserRole, QByteArray::fromStdString(folder.native()));
        item->setToolTip(toolTipText(shownPath(folder)));
    };
    bool isLastKnown = request_.folder.empty();
    for (const SavePlace& place : places) {
        add(nameOfSavePlace(place), place.folder);
        isLastKnown = isLastKnown || place.folder == request_.folder;
    }
    if (!isLastKnown)
        add(
            //: the folder that was saved to before
            translate("SavePanel", "Last used"), request_.folder);
}

void SavePanel::tryNextStart() {
    const SavePath start = starts_.back();
    starts_.pop_back();
    lookInto(start);
}

void SavePanel::goTo(const SavePath& folder) {
    starts_.clear();
    fileAsked_.reset();
    setChecking(false);
    lookInto(folder);
}

void SavePanel::lookInto(const SavePath& folder) {
    shown_ = folder;
    chosen_.reset();
    linksAsked_.reset();
    folder_->setText(shownPath(folder));
    list_->show({});
    list_->scrollToTop();
    // A check is already under way: the user was faster than the disk.
    if (!fileAsked_) notice_->say(translate("SavePanel", "Looking into the folder…"));
    folderAsked_ = disk_->ask<FolderContents>(
        [folder, ending = request_.ending.toStdString()] { return readFolder(folder, ending); },
        [this, folder](const std::optional<FolderContents>& contents) {
            showFolder(folder, contents);
        });
}

void SavePanel::goUp() {
    goTo(currentFolder().parent_path());
}

void SavePanel::showFolder(const SavePath& folder, const std::optional<FolderContents>& contents) {
    const bool isThere = contents && contents->error == 0;
    if (!isThere && !starts_.empty()) return tryNextStart();
    starts_.clear();
    if (isThere) {
        list_->show(contents->entries);
        follow(folder, contents->entries);
    }
    if (fileAsked_) return;
    if (!contents) return warn(diskDoesNotAnswer());
    if (!isThere) return warn(whyFolderIsNotRead(contents->error));
    if (!contents->isWritable) {
        warn(translate("SavePanel", "You do not have the permission to save in this folder."));
    } else if (!contents->isWhole) {
        constexpr int most = FolderContents::maxEntries;
        notice_->say(translate("SavePanel", "Only the first %Ln of this folder are shown.",
                               "files and folders", most));
    } else {
        notice_->clear();
    }
}

/// A link may lead into a disk that hangs: then it stays in the list as a possible folder.
void SavePanel::follow(const SavePath& folder, const std::vector<FolderEntry>& entries) {
    const auto isLink = [](const FolderEntry& entry) {
        return entry.kind == FolderEntry::Kind::link;
    };
    if (std::ranges::none_of(entries, isLink)) return;
    linksAsked_ = disk_->ask<std::vector<FolderEntry>>(
        [folder, entries, ending = request_.ending.toStdString()] {
            return followLinks(folder, entries, ending);
        },
        [this](std::optional<std::vector<FolderEntry>> followed) {
            if (followed) list_->show(*std::move(followed));
        });
}

void SavePanel::choose(const FolderEntry& entry) {
    if (entry.kind != FolderEntry::Kind::file) return;
    chosen_ = entry.name;
    name_->setText(shownPath(entry.name));
    edited();
}

void SavePanel::enter(const FolderEntry& entry) {
    if (entry.kind != FolderEntry::Kind::file) return goTo(shown_ / entry.name);
    choose(entry);
    save();
}

/// The former check and its message no longer apply.
void SavePanel::edited() {
    fileAsked_.reset();
    setChecking(false);
    notice_->clear();
}

void SavePanel::askForNewFolder() {
    auto* const box = makeChild<QInputDialog>(static_cast<QWidget*>(this));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(
        //: the title of a box
        translate("SavePanel", "New Folder"));
    box->setLabelText(translate("SavePanel", "Name of the new folder:"));
    box->setOkButtonText(
        //: a button; the letter behind & is pressed together with Alt
        translate("SavePanel", "&Create"));
    connect(box, &QInputDialog::textValueSelected, this,
            [this](const QString& name) { makeNewFolder(name.trimmed()); });
    box->QDialog::open();
}

void SavePanel::makeNewFolder(const QString& name) {
    if (name.isEmpty()) return;
    const SavePath folder = folderOf(name, currentFolder());
    notice_->say(translate("SavePanel", "Making the folder…"));
    folderAsked_ = disk_->ask<int>([folder] { return makeFolder(folder); },
                                   [this, folder](std::optional<int> error) {
                                       if (!error) return warn(diskDoesNotAnswer());
                                       if (*error == 0 || *error == EEXIST) return goTo(folder);
                                       warn(whyFolderIsNotMade(*error));
                                   });
}

SavePath SavePanel::currentFolder() const {
    const QString typed = folder_->text();
    return typed == shownPath(shown_) ? shown_ : folderOf(typed, shown_);
}

SavePath SavePanel::typedFile() const {
    const QString typed = name_->text();
    if (chosen_ && typed == shownPath(*chosen_)) return currentFolder() / *chosen_;
    return fileOf(typed, currentFolder(), request_.ending);
}

void SavePanel::save() {
    const SavePath file = typedFile();
    if (file.empty()) return warn(translate("SavePanel", "Please type a name for the file."));
    if (file.is_relative()) return warn(translate("SavePanel", "Please choose a folder first."));
    setChecking(true);
    notice_->say(
        //: whether a file can be saved there
        translate("SavePanel", "Checking…"));
    fileAsked_ = disk_->ask<DestinationLook>(
        [file] { return lookAtDestination(file); },
        [this, file](const std::optional<DestinationLook>& look) { judge(file, look); });
}

void SavePanel::setChecking(bool isChecking) {
    save_->setEnabled(!isChecking);
}

void SavePanel::judge(const SavePath& file, const std::optional<DestinationLook>& look) {
    fileAsked_.reset();
    setChecking(false);
    if (!look) return warn(diskDoesNotAnswer());
    const auto refuse = [&](int error) {
        warn(wordedForPeople(describeFileError(error, file).description));
    };
    switch (look->found) {
        case Destination::free:
            return finish(file);
        case Destination::file:
            return askToReplace(file);
        case Destination::folder:
            name_->setText(request_.proposedName);
            name_->selectAll();
            return goTo(file);
        case Destination::other:
            return refuse(notAnOrdinaryFile);
        case Destination::noFolder:
            return refuse(ENOENT);
        case Destination::unknown:
            return refuse(look->error);
    }
}

void SavePanel::warn(const QString& text) {
    notice_->say(text, SaveNotice::Tone::warning);
}

void SavePanel::finish(const SavePath& file) {
    destination_ = file;
    accept();
}

}  // namespace vantor

#include "app/files/folder_view.h"

#include <QAbstractListModel>
#include <QStyle>

#include <algorithm>
#include <utility>

#include "app/files/save_location.h"
#include "ui/components/make_child.h"
#include "ui/translate.h"

namespace vantor {

class FolderView::Model : public QAbstractListModel {
  public:
    explicit Model(QWidget* view) : QAbstractListModel(view), view_(view) {}

    void show(std::vector<FolderEntry> entries) {
        beginResetModel();
        entries_ = std::move(entries);
        endResetModel();
    }
    const std::vector<FolderEntry>& entries() const { return entries_; }
    const FolderEntry* at(const QModelIndex& index) const {
        const auto row = static_cast<std::size_t>(index.row());
        return index.isValid() && row < entries_.size() ? &entries_[row] : nullptr;
    }

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(entries_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const FolderEntry* const entry = at(index);
        if (!entry) return {};
        const bool isFile = entry->kind == FolderEntry::Kind::file;
        const QString name = shownPath(entry->name);
        switch (role) {
            case Qt::DisplayRole:
            case Qt::ToolTipRole:
                return name;
            case Qt::AccessibleTextRole:
                return isFile ? name
                              : /*: for screen readers; %1 is the name of a folder */ translate(
                                    "SavePanel", "%1, folder")
                                    .arg(name);
            case Qt::DecorationRole:  // from what is known already: no file is opened for it
                return view_->style()->standardIcon(isFile ? QStyle::SP_FileIcon
                                                           : QStyle::SP_DirIcon);
            default:
                return {};
        }
    }

  private:
    QWidget* view_;
    std::vector<FolderEntry> entries_;
};

FolderView::FolderView(Actions actions, QWidget* parent)
    : QListView(parent),
      model_(makeChild<Model>(static_cast<QWidget*>(this))),
      actions_(std::move(actions)) {
    setModel(model_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(
        //: for screen readers: the contents of a folder
        translate("SavePanel", "Folders and files"));
    connect(this, &QListView::activated, this, [this](const QModelIndex& index) {
        if (const FolderEntry* const entry = model_->at(index)) {
            const FolderEntry opened = *entry;  // opening it replaces the list
            actions_.onOpened(opened);
        }
    });
    connect(this, &QListView::clicked, this, [this](const QModelIndex& index) {
        if (const FolderEntry* const entry = model_->at(index)) actions_.onChosen(*entry);
    });
}

FolderView::~FolderView() = default;

void FolderView::show(std::vector<FolderEntry> entries) {
    if (entries == model_->entries()) return;
    const FolderEntry* const chosen = model_->at(currentIndex());
    const std::string name = chosen ? chosen->name : std::string();
    isShowing_ = true;
    model_->show(std::move(entries));
    const auto found = std::ranges::find(model_->entries(), name, &FolderEntry::name);
    if (chosen && found != model_->entries().end())
        setCurrentIndex(model_->index(static_cast<int>(found - model_->entries().begin())));
    isShowing_ = false;
}

const std::vector<FolderEntry>& FolderView::entries() const {
    return model_->entries();
}

void FolderView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    const FolderEntry* const entry = model_->at(current);
    if (entry && !isShowing_ && hasFocus()) actions_.onChosen(*entry);
}

}  // namespace vantor

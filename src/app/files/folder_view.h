#pragma once

#include <QListView>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/files/folder_looks.h"

namespace vantor {

/// The folders and files of one folder, as a list.
class FolderView : public QListView {
  public:
    struct Actions {
        std::function<void(const FolderEntry&)> onChosen;  ///< clicked, or reached by keyboard
        std::function<void(const FolderEntry&)> onOpened;  ///< double-clicked, or Return
    };

    explicit FolderView(Actions actions, QWidget* parent = nullptr);
    ~FolderView() override;

    /// The choice stays where the same entry is still there.
    void show(std::vector<FolderEntry> entries);
    const std::vector<FolderEntry>& entries() const;

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    class Model;

    Model* model_;  // owned by this widget, as its child
    Actions actions_;
    bool isShowing_ = false;  // the choice is not changed by the user
};

}  // namespace vantor

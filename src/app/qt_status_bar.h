#pragma once

#include <QTimer>

#include <memory>

#include "app/status_bar.h"

class QDBusServiceWatcher;

namespace vantor {

/// The tray of Linux desktops: items of the session bus (StatusNotifierItem) where something there
/// shows them, else icons embedded into an X11 tray.
class QtStatusBar : public StatusBar {
  public:
    QtStatusBar();
    ~QtStatusBar() override;

    bool isAvailable() const override { return isAvailable_; }
    void listen(std::function<void()> onChange) override;
    std::unique_ptr<StatusItem> makeItem(StatusItemContent content) override;

  private:
    class Item;

    void look();
    bool isThere();
    void showItems();

    std::function<void()> onChange_;
    std::unique_ptr<QDBusServiceWatcher> watcher_;
    QTimer look_;
    bool isOnBus_ = false;
    bool isAvailable_ = false;
    qint64 started_ = 0;
    std::vector<Item*> items_;  // those that live now
};

}  // namespace vantor

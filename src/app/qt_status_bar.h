#pragma once

#include <QElapsedTimer>
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

    /// What the toolkit shows icons by; it decides once and for all.
    enum class Way { undecided, bus, embedded };

    void look();
    void askBus();
    void settle();
    bool isThere();
    void showItems();

    std::function<void()> onChange_;
    std::unique_ptr<QDBusServiceWatcher> watcher_;
    QTimer look_;
    bool hasWatcher_ = false;  // the session bus knows a tray's service
    bool isOnBus_ = false;     // and something shows its items
    Way way_ = Way::undecided;
    bool isAvailable_ = false;
    QElapsedTimer sinceStart_;
    std::vector<Item*> items_;  // those that live now
};

}  // namespace vantor

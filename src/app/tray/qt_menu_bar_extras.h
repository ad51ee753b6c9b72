#pragma once

#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>

#include "app/tray/status_bar.h"

namespace vantor {

/// An item of a menu bar: its symbol in the bar's own colour. A press calls its action; the other
/// mouse button opens its plain menu. Main thread.
class QtMenuBarExtra : public StatusItem {
  public:
    explicit QtMenuBarExtra(StatusItemContent content);

    QSystemTrayIcon& icon() { return icon_; }
    QMenu& menu() { return menu_; }

  private:
    void activate(QSystemTrayIcon::ActivationReason reason);

    StatusItemContent content_;
    QMenu menu_;
    QSystemTrayIcon icon_;
};

/// The menu bar of desktops where it is always there, and shows what programs put into it.
class QtMenuBarExtras : public StatusBar {
  public:
    bool isAvailable() const override { return true; }
    void listen(std::function<void()> onChange) override;  // nothing ever changes
    std::unique_ptr<StatusItem> makeItem(StatusItemContent content) override;
};

}  // namespace vantor

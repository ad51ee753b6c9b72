#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QRect>

#include <functional>
#include <memory>

#include "app/tray/bus_menu.h"
#include "app/tray/notifier_values.h"
#include "app/tray/status_bar.h"

namespace vantor {

/// Makes a connection of that name to the session's bus.
using BusConnector = std::function<QDBusConnection(const QString& name)>;

/// The place of a press, from the desktop's `point` in its own pixels; the pointer's place where
/// that is useless.
QRect areaOfPress(QPoint point);

/// An item of the session bus (StatusNotifierItem), on a connection of its own, as some watchers
/// remove it only when that ends. It registers with the present watcher. Main thread.
///
/// The toolkit's own such item does not report where it was pressed, is named after the application
/// object, and asks only once whether the bus has a tray.
class NotifierItem : public StatusItem {
  public:
    enum class Standing { asked, taken, refused };

    static QString watcherService();
    static QString watcherPath();

    /// Each item of a process has its own number, also one after the other.
    /// `onDecided` is called when the watcher has decided, never from within this call; it may not
    /// end the item.
    NotifierItem(const BusConnector& connect, int number, StatusItemContent content,
                 std::function<void()> onDecided);
    NotifierItem(const NotifierItem&) = delete;
    NotifierItem& operator=(const NotifierItem&) = delete;
    ~NotifierItem() override;

    Standing standing() const { return standing_; }

    /// Asks once more, while nothing is decided.
    void look();

    /// Notifies the desktop, unless it has not even read the last one.
    void toolTipChanged() override;

  private:
    class Face;

    void ask();
    void decide(Standing standing);

    StatusItemContent content_;
    std::function<void()> onDecided_;
    QString name_;
    QDBusConnection bus_;
    std::unique_ptr<Face> face_;
    BusMenu menu_;
    Standing standing_ = Standing::asked;
    bool isAsking_ = false;
    bool hasAnswered_ = false;  // the watcher has said yes
    int missed_ = 0;            // looks at the watcher's list that did not find it
    QObject context_;
};

}  // namespace vantor

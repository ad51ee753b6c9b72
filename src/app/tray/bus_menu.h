#pragma once

#include <QDBusArgument>
#include <QDBusMessage>
#include <QList>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <vector>

#include "app/session/bus_object.h"
#include "app/tray/status_bar.h"

namespace vantor {

/// One entry as it is sent, with those below it.
struct BusMenuNode {
    int id = 0;
    QVariantMap properties;
    QList<BusMenuNode> children;
};
QDBusArgument& operator<<(QDBusArgument& out, const BusMenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& in, BusMenuNode& node);

/// One entry alone.
struct BusMenuEntry {
    int id = 0;
    QVariantMap properties;
};
QDBusArgument& operator<<(QDBusArgument& out, const BusMenuEntry& entry);
const QDBusArgument& operator>>(const QDBusArgument& in, BusMenuEntry& entry);

/// A plain menu that a desktop reads from the bus and draws itself (com.canonical.dbusmenu). Its
/// entries are read anew each time before it opens; an entry is known by its place. Main thread.
class BusMenu : public BusObject {
  public:
    using Ask = std::function<std::vector<StatusMenuEntry>()>;
    /// Sends the signal to everybody on the bus.
    using Send = std::function<void(const QDBusMessage& signal)>;

    BusMenu(const QString& path, Ask ask, Send send);

  protected:
    QVariantMap properties() const override;
    std::optional<QVariantList> call(const QString& method, const QString& signature,
                                     const QVariantList& arguments) override;

  private:
    bool refresh();
    bool has(int id) const;
    QVariantMap propertiesOf(int id) const;
    BusMenuNode layout(int id, bool withChildren) const;
    QList<BusMenuEntry> group(const QList<int>& ids) const;
    void happened(int id, const QString& event);
    QList<int> happened(const QDBusArgument& events);

    Ask ask_;
    Send send_;
    std::vector<StatusMenuEntry> entries_;
    uint revision_ = 1;
    QObject context_;  // of tasks for a later turn of the loop
};

}  // namespace vantor

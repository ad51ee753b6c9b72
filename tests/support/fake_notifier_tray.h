#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QPoint>
#include <QString>
#include <QStringList>

#include <memory>

#include "app/session/bus_object.h"
#include "app/tray/bus_menu.h"

namespace vantor {

/// A desktop's panel on a bus: the service that collects items, and a host that shows them, for as
/// long as the object lives. Its answers are given while the caller handles events.
class FakeNotifierTray {
  public:
    enum class Manner {
        honest,
        hostless,     ///< collects and shows nothing
        refusing,     ///< takes no item
        ignoring,     ///< says that it takes them and does not
        undescribed,  ///< does not say by introspection what it has
        discreet,     ///< does not tell which items it has
        misnaming,    ///< goes by names of its own for them
    };

    explicit FakeNotifierTray(const QString& address, Manner manner = Manner::honest);
    FakeNotifierTray(const FakeNotifierTray&) = delete;
    FakeNotifierTray& operator=(const FakeNotifierTray&) = delete;
    ~FakeNotifierTray();

    /// The names of the items that it has now.
    const QStringList& items() const { return items_; }

    /// How often anybody has asked what it has.
    int looks() const { return looks_; }

    /// How often anybody has asked which items it has; a program believes that its item was taken
    /// once it has found it there.
    int listings() const { return listings_; }

    /// A host comes to a service without one, or goes.
    void setHost(bool isThere);

    // What a host does with the last item:

    QVariant property(const QString& name);
    QVariantMap properties();
    /// The menu as it is when it opens.
    BusMenuNode menu();
    /// Chooses the entry of that label; false when there is none.
    bool choose(const QString& label);
    void activate(QPoint point);
    QDBusMessage ask(const QString& path, const QString& interface, const QString& method,
                     const QVariantList& arguments = {});

  private:
    class Service;

    void tell(const QString& signal, const QVariantList& arguments = {});

    QString name_;
    QDBusConnection bus_;
    Manner manner_;
    bool hasHost_;
    QStringList items_;
    int looks_ = 0;
    int listings_ = 0;
    QDBusServiceWatcher owners_;
    std::unique_ptr<Service> service_;
};

}  // namespace vantor

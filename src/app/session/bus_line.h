#pragma once

#include <QDBusConnection>
#include <QString>

#include <functional>
#include <utility>

namespace vantor {

/// A connection to a bus that ends with its last user, on whichever thread that is.
class BusLine {
  public:
    /// Makes a connection of that name. On a thread of its own: it waits for the bus.
    using Connect = std::function<QDBusConnection(const QString& name)>;

    BusLine(const Connect& connect, QString name) : name_(std::move(name)), bus_(connect(name_)) {}
    BusLine(const BusLine&) = delete;
    BusLine& operator=(const BusLine&) = delete;
    ~BusLine() { QDBusConnection::disconnectFromBus(name_); }

    QDBusConnection& bus() { return bus_; }

  private:
    QString name_;
    QDBusConnection bus_;
};

/// To the session's bus; not connected where there is none.
QDBusConnection connectToSessionBus(const QString& name);

}  // namespace vantor

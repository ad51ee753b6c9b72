#include "app/session/bus_line.h"

#include "app/session/session_places.h"

namespace vantor {

QDBusConnection connectToSessionBus(const QString& name) {
    const QString address = sessionBusAddress();
    // For an invalid address the toolkit would make no connection, and cache that by its name.
    if (address.isEmpty()) return QDBusConnection(name);
    return QDBusConnection::connectToBus(address, name);
}

}  // namespace vantor

#include "app/session/safe_environment.h"

#include <QByteArrayList>
#include <QSysInfo>

#include "app/session/hung_folders.h"
#include "app/session/session_places.h"
#include "app/session/session_sockets.h"

namespace vantor {

namespace {

void keepLocalAddresses(const char* name) {
    if (!qEnvironmentVariableIsSet(name)) return;
    const QByteArray local = localBusAddresses(qgetenv(name));
    if (local.isEmpty()) {
        qunsetenv(name);
    } else {
        qputenv(name, local);
    }
}

}  // namespace

QByteArray localBusAddresses(const QByteArray& addresses) {
    QByteArrayList local;
    for (const QByteArray& address : addresses.split(';')) {
        if (address.startsWith("unix:")) local += address;
    }
    return local.join(';');
}

QByteArray answeringSessionManagers(const QByteArray& addresses) {
    QByteArrayList answering;
    for (const QByteArray& address : addresses.split(',')) {
        const qsizetype slash = address.indexOf('/');
        const qsizetype colon = address.indexOf(':', slash);
        const QByteArray way = address.left(slash);
        if (slash < 0 || colon < 0 || (way != "local" && way != "unix")) continue;
        QByteArray path = address.mid(colon + 1);
        if (path.startsWith('@')) path.remove(0, 1);
        // Any other host's name would be looked up, to find whether it is this machine.
        if (takesConnections(path))
            answering += way + '/' + QSysInfo::machineHostName().toLocal8Bit() + address.mid(colon);
    }
    return answering.join(',');
}

void makeEnvironmentSafe() {
    // First: what follows looks for sockets on the disk.
    HungFolders().leaveOutOfEnvironment();
    const QByteArray bus = sessionBusAddress().toLocal8Bit();
    // Without any address the library would start a bus.
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.isEmpty() ? QByteArray("disabled:") : bus);
    keepLocalAddresses("DBUS_SYSTEM_BUS_ADDRESS");
    keepLocalAddresses("DBUS_STARTER_ADDRESS");
    keepLocalAddresses("AT_SPI_BUS_ADDRESS");
    const QByteArray managers = answeringSessionManagers(qgetenv("SESSION_MANAGER"));
    if (managers.isEmpty()) {
        qunsetenv("SESSION_MANAGER");
    } else {
        qputenv("SESSION_MANAGER", managers);
    }
    // The theme of GTK brings GTK's own accessibility with it. It has none of our windows to tell
    // of, and announces itself with a call that waits up to 25 s for its answer.
    qputenv("NO_AT_BRIDGE", "1");
}

}  // namespace vantor

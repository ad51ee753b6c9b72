#pragma once

#include <QByteArray>

namespace vantor {

/// Leaves in the environment only addresses of this machine: of the session's bus, the system's,
/// the accessibility bus and the session manager. The toolkit and its libraries go wherever they
/// are pointed to, and where they are pointed nowhere they start a bus themselves; so it has to
/// happen before the toolkit's application object is made, and before any thread. A session manager
/// that does not take a connection at once is left out: its library would try for seconds. So is
/// what leads into a folder of the user that does not answer, see HungFolders. And the
/// accessibility of another toolkit, which a theme may load, is left out; our own is not.
void makeEnvironmentSafe();

/// Those of a bus's addresses that are sockets of this machine.
QByteArray localBusAddresses(const QByteArray& addresses);

/// Those of the session managers that are sockets of this machine and take a connection, by names
/// that need no look-up.
QByteArray answeringSessionManagers(const QByteArray& addresses);

/// Whether the environment names an X display of this machine that is not there. The library would
/// go on to look for it by an internet connection.
bool isLocalDisplayMissing();

}  // namespace vantor

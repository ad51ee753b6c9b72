#include "app/session/session_places.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QStringList>

#include <optional>

namespace vantor {

namespace {

std::optional<struct stat> ownAt(const QString& path) {
    struct stat found {};
    if (path.isEmpty() || ::lstat(QFile::encodeName(path).constData(), &found) != 0) return {};
    return found.st_uid == ::geteuid() ? std::optional(found) : std::nullopt;
}

bool isPrivateFolder(const QString& path) {
    const auto found = QDir::isAbsolutePath(path) ? ownAt(path) : std::nullopt;
    return found && S_ISDIR(found->st_mode) && (found->st_mode & 077) == 0;
}

QString runtimeFolderOfSession() {
    return qEnvironmentVariable("XDG_RUNTIME_DIR");
}

}  // namespace

QString sessionBusAddress() {
    const QString told = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (told.isEmpty()) {
        const QString usual = runtimeFolderOfSession() + QStringLiteral("/bus");
        const auto found = ownAt(usual);
        if (!found || !S_ISSOCK(found->st_mode)) return {};
        const QByteArray path = QFile::encodeName(usual).toPercentEncoding("/", "~");
        return QStringLiteral("unix:path=") + QString::fromLatin1(path);
    }
    QStringList local;
    for (const QString& address : told.split(u';')) {
        if (address.startsWith(QStringLiteral("unix:"))) local += address;
    }
    return local.join(u';');
}

QString privateRuntimeFolder() {
    QString ofSession = runtimeFolderOfSession();
    if (isPrivateFolder(ofSession)) return ofSession;
    // The shorter a path is the better: it may have to fit into a socket's address.
    QString temporary = QDir::tempPath();
    if (isPrivateFolder(temporary)) return temporary;
    const QString own = temporary + QStringLiteral("/vantor-%1").arg(::geteuid());
    ::mkdir(QFile::encodeName(own).constData(), 0700);
    // Made just now, or prepared by another user: this decides.
    return isPrivateFolder(own) ? own : QString();
}

QString displayName() {
    QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
    if (!wayland.isEmpty()) return wayland;
    const QString x11 = qEnvironmentVariable("DISPLAY");
    const auto screen = x11.indexOf(u'.', x11.lastIndexOf(u':'));
    return x11.left(screen < 0 || !x11.contains(u':') ? x11.size() : screen);
}

}  // namespace vantor

#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

namespace vantor {

/// What a dbus-daemon is called with to be a session bus of the test's own: it starts the
/// accessibility bus when asked, and nothing else that happens to be installed, such as a desktop's
/// portals. `folder` is the test's and outlives the bus.
inline QStringList sessionBusArguments(const QString& folder) {
    const QString services = folder + QStringLiteral("/services-of-the-bus");
    QDir().mkpath(services);
    const QString accessibility = QStringLiteral("org.a11y.Bus.service");
    QFile::copy(QStringLiteral("/usr/share/dbus-1/services/") + accessibility,
                services + u'/' + accessibility);
    QFile config(folder + QStringLiteral("/session-bus.conf"));
    if (config.open(QIODevice::WriteOnly)) {
        config.write(
            "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><servicedir>" +
            services.toUtf8() +
            "</servicedir><policy context=\"default\">"
            "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
            "<allow own=\"*\"/></policy></busconfig>");
    }
    return {QStringLiteral("--config-file=") + config.fileName(), QStringLiteral("--nofork"),
            QStringLiteral("--print-address=1")};
}

}  // namespace vantor

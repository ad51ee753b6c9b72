#include <QStringList>

#include <cstdlib>
#include <string>

#include "app/session_places.h"

#include "require.h"

/// Two lines of the environment: the bus's address and the folder that it is in otherwise.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string text(fuzz::textOf(data, size));
    const auto line = text.find('\n');
    const std::string address = text.substr(0, line);
    const std::string folder = line == text.npos ? "" : text.substr(line + 1);
    ::setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
    ::setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
    ::setenv("DISPLAY", address.c_str(), 1);
    ::setenv("WAYLAND_DISPLAY", folder.c_str(), 1);

    // Sockets of this machine only: nothing that is started, and no network.
    const QString bus = sessionBusAddress();
    if (!bus.isEmpty()) {
        for (const QString& each : bus.split(u';'))
            require(each.startsWith(QStringLiteral("unix:")));
    }
    require(displayName().size() <= static_cast<qsizetype>(size));
    return 0;
}

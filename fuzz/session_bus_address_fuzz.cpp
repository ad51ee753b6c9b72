#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include "app/session/local_socket.h"
#include "app/session/session_places.h"

#include "require.h"

namespace vantor {
namespace {

using fuzz::require;

/// A session's folder of that name, with a bus in it, which is found by its address.
void findBusIn(const std::string& name) {
    static const std::string parent = [] {
        std::string folder = (std::filesystem::temp_directory_path() / "bus-fuzz-XXXXXX").string();
        require(::mkdtemp(folder.data()) != nullptr);
        return folder;
    }();
    const std::string folder = parent + '/' + name;
    if (::mkdir(folder.c_str(), 0700) != 0) return;
    const std::string bus = folder + "/bus";
    {
        const FileDescriptor listening = listeningAt(bus.c_str());
        ::setenv("DBUS_SESSION_BUS_ADDRESS", "", 1);
        ::setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
        const QByteArray address = sessionBusAddress().toLatin1();
        const QByteArray start = "unix:path=";
        // Names that are no text are not found.
        const bool isText = std::ranges::all_of(
            name, [](char letter) { return static_cast<signed char>(letter) > 0; });
        require(!address.isEmpty() || !listening || !isText);
        if (!address.isEmpty()) {
            require(address.startsWith(start) &&
                    QByteArray::fromPercentEncoding(address.mid(start.size())) == bus.c_str());
            require(address.count(';') + address.count(',') == 0);
        }
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

}  // namespace
}  // namespace vantor

/// Two lines of the environment: the bus's address and the folder that it is in otherwise; with "@"
/// before it, one that is there, of that name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string text(fuzz::textOf(data, size));
    const auto line = text.find('\n');
    const std::string address = text.substr(0, line);
    const std::string folder = line == text.npos ? "" : text.substr(line + 1);
    if (folder.starts_with('@')) {
        const std::string name = folder.substr(1, 40);
        if (!name.empty() && name.find('/') == name.npos && name.find('\0') == name.npos)
            findBusIn(name);
        return 0;
    }
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

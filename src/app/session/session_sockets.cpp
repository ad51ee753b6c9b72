#include "app/session/session_sockets.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>

#include "platform/file_descriptor.h"

namespace vantor {

namespace {

/// A name that begins with a zero is one of no file.
bool takesConnectionsAs(const QByteArray& name) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || name.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    if (!socket || ::fcntl(socket.get(), F_SETFL, O_NONBLOCK) != 0) return false;
    const auto length = offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size());
    return ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address),
                     static_cast<socklen_t>(length)) == 0;
}

}  // namespace

bool takesConnections(const QByteArray& path) {
    return takesConnectionsAs(QByteArray(1, '\0') + path) || takesConnectionsAs(path);
}

}  // namespace vantor

#include "app/session/local_socket.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <optional>

namespace vantor {

namespace {

constexpr int backlog = 8;

std::optional<sockaddr_un> addressOf(const QByteArray& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path)) return {};
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return address;
}

FileDescriptor prepared(int descriptor) {
    FileDescriptor socket(descriptor);
    const bool isReady = socket && ::fcntl(socket.get(), F_SETFD, FD_CLOEXEC) == 0 &&
                         ::fcntl(socket.get(), F_SETFL, O_NONBLOCK) == 0;
    return isReady ? std::move(socket) : FileDescriptor();
}

using Call = int (*)(int, const sockaddr*, socklen_t);

FileDescriptor socketAt(const QByteArray& path, Call call) {
    const auto address = addressOf(path);
    if (!address) return {};
    FileDescriptor socket = prepared(::socket(AF_UNIX, SOCK_STREAM, 0));
    const bool isDone = socket && call(socket.get(), reinterpret_cast<const sockaddr*>(&*address),
                                       sizeof *address) == 0;
    return isDone ? std::move(socket) : FileDescriptor();
}

}  // namespace

FileDescriptor listeningAt(const QByteArray& path) {
    FileDescriptor socket = socketAt(path, ::bind);
    return socket && ::listen(socket.get(), backlog) == 0 ? std::move(socket) : FileDescriptor();
}

FileDescriptor connectedTo(const QByteArray& path) {
    return socketAt(path, ::connect);
}

FileDescriptor acceptedFrom(const FileDescriptor& listening) {
    return prepared(::accept(listening.get(), nullptr, nullptr));
}

}  // namespace vantor
